/* Shell: the helper library's forms of running shell commands. */
#pragma once
#include "native/base.h"
#include "sdk/enums.h"

OMBRA_BEGIN_DECLS

cmd_result_t korvel_sh_process_command(int unit, char *c);
cmd_result_t korvel_sh_process(int unit, char const *pfx, int eof_exit);

OMBRA_END_DECLS
