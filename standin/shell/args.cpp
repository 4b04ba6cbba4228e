// Whether a list of arguments was read to its end.
#include "standin/shell/args.h"

#include "sdk/constants.h"
#include "sdk/diag/parse.h"
#include "standin/base/output.h"

int parseEndOk(args_t *arg1, parse_table_t *arg2, cmd_result_t *arg3) {
    std::string fault = arg2 != nullptr ? arg2->fault : "no table";
    if (arg1 == nullptr) fault = "no arguments";
    const bool left = arg1 != nullptr && arg1->next < arg1->words.size();
    if (fault.empty() && left) fault = "unknown option '" + arg1->words[arg1->next] + "'";
    if (arg3 != nullptr) *arg3 = static_cast<cmd_result_t>(fault.empty() ? CMD_OK : CMD_USAGE);
    if (fault.empty()) return 1;
    if (arg1 != nullptr && arg2 != nullptr)
        standin::outf("%s: %s\n", arg1->command.c_str(), fault.c_str());
    return 0;
}
