/* Shell: running commands, start-up files, interrupts and background work of the shell. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/enums.h"

OMBRA_BEGIN_DECLS

/* Start */
void diag_init(void);
void diag_shell(void);
void init_symtab(void);
void sh_bg_init(void);
void sh_print_version(int verbose);

/* Commands */
cmd_result_t sh_process_command(int unit, char *c);
cmd_result_t sh_process_command_check(int unit, char *c);
cmd_result_t sh_process(int unit, char const *, int eof);
cmd_result_t sh_rcload_file(int u, args_t *, char *f, int add_rc);
int sh_check_attached(char const *pfx, int unit);
void sh_swap_unit_vars(int new_unit);

/* Start-up files */
void diag_rc_set(int unit, char const *fname);
void diag_rc_get(int unit, char const **fname);
int diag_rc_load(int unit);

/* Interrupts */
void sh_push_ctrl_c(jmp_buf *);
void sh_pop_ctrl_c(void);
void sh_block_ctrl_c(int);
void sh_ctrl_c_take(void);

/* The packet watcher */
int pw_running(int unit);
cmd_result_t pw_stop(int unit, int sync);

OMBRA_END_DECLS
