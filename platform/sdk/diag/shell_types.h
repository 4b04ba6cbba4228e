/* Shell: commands, register kinds and the shell's own records. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Carries out a command. */
typedef cmd_result_t (*cmd_func_t)(int unit, args_t *args);

/* A command of the shell. The texts are never released. */
typedef struct cmd_s {
    parse_key_t c_cmd;
    cmd_func_t c_f;
    char const *c_usage;
    char const *c_help;
} cmd_t;

/* A kind of register by name. Each text is an array of `new char[]`. */
typedef struct {
    char *name;
    soc_regtype_t type;
    char *help;
} regtype_entry_t;

/* A walk over registers. */
typedef struct reg_data {
    int unit;
    int start_from;
    int count;
    int error;
    int flags;
} reg_data_t;

OMBRA_END_DECLS
