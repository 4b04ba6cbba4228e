// The shell's C functions, and sdc.
#include "helper/shell.h"
#include "helper/shell_cxx.h"
#include "sdk/diag/shell.h"
#include "sdk/variables.h"
#include "standin/base/config_store.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/shell/args.h"
#include "standin/shell/interactive.h"
#include "standin/shell/interrupt.h"
#include "standin/text/name_text.h"

using namespace standin;

namespace {

constexpr const char *kPrompt = "OMBRA";

std::string or_unknown(const char *text) {
    return text != nullptr && *text != '\0' ? text : "unknown";
}

}  // namespace

void diag_init(void) {
    init_symtab();
    sh_bg_init();
}

void diag_shell(void) {
    diag_init();
    std::string prompt = standin::config_get("diag_shell_prompt").value_or(kPrompt);
    sh_process(Shell::instance().unit(), prompt.c_str(), 1);
}

// The names are looked up at the first use anyway; here that is done at once.
void init_symtab(void) { identifiers(Identifier::kRegister); }

// No command runs in the background, so there is nothing to prepare.
void sh_bg_init(void) {}

void sh_print_version(int verbose) {
    outf("Release: %s\n", or_unknown(_build_release).c_str());
    if (verbose == 0) return;
    outf("Built:   %s by %s on %s\n", or_unknown(_build_date).c_str(),
         or_unknown(_build_user).c_str(), or_unknown(_build_host).c_str());
    outf("Tree:    %s, stamp %s\n", or_unknown(_build_tree).c_str(),
         or_unknown(_build_datestamp).c_str());
}

cmd_result_t sh_process_command(int unit, char *c) { return Shell::instance().run(unit, c); }

cmd_result_t sh_process_command_check(int unit, char *c) {
    return Shell::instance().run_checked(unit, c);
}

cmd_result_t korvel_sh_process_command(int unit, char *c) { return sh_process_command(unit, c); }

cmd_result_t sh_process(int unit, char const *prefix, int eof) {
    std::unique_ptr<LineSource> source = open_standard_input();
    return interact(*source, unit, prefix != nullptr ? prefix : kPrompt, eof != 0);
}

cmd_result_t korvel_sh_process(int unit, char const *pfx, int eof_exit) {
    return sh_process(unit, pfx, eof_exit);
}

Lumo::String sdc(int unit, char *command) {
    Capture capture;
    sh_process_command(unit, command);
    return Lumo::String(capture.text());
}

cmd_result_t sh_rcload_file(int u, args_t *args, char *f, int add_rc) {
    if (f == nullptr) return kFail;
    std::vector<std::string> words;
    while (args != nullptr && args->next < args->words.size())
        words.push_back(args->words[args->next++]);
    return Shell::instance().run_file(u, f, words, add_rc != 0);
}

int sh_check_attached(char const *pfx, int unit) {
    if (unit_attached(unit)) return BCM_E_NONE;
    std::string prefix(view_of(pfx));
    outf("%s%sunit %d is not attached\n", prefix.c_str(), prefix.empty() ? "" : ": ", unit);
    return BCM_E_UNIT;
}

void sh_swap_unit_vars(int new_unit) { Shell::instance().swap_variables(new_unit); }

void diag_rc_set(int unit, char const *fname) {
    Shell::instance().start_file_set(unit, std::string(view_of(fname)));
}

void diag_rc_get(int unit, char const **fname) {
    if (fname == nullptr) return;
    // Lent out until this thread asks again: another one may set a name.
    thread_local std::string lent;
    std::optional<std::string> file = Shell::instance().start_file(unit);
    lent = file.value_or("");
    *fname = file ? lent.c_str() : nullptr;
}

int diag_rc_load(int unit) {
    std::optional<std::string> file = Shell::instance().start_file(unit);
    if (!file || sh_set_rcload == 0) return BCM_E_NONE;
    cmd_result_t result = Shell::instance().run_file(unit, *file, {}, false);
    if (result == kNotFound) return BCM_E_NOT_FOUND;
    return result == kOk ? BCM_E_NONE : BCM_E_FAIL;
}

void sh_push_ctrl_c(jmp_buf *point) {
    if (point != nullptr) interrupt_push(point);
}

void sh_pop_ctrl_c(void) { interrupt_pop(); }

void sh_block_ctrl_c(int block) { interrupt_block(block != 0); }

void sh_ctrl_c_take(void) { interrupt_take(); }

int pw_running(int unit) { return Shell::instance().watching(unit) ? 1 : 0; }

// There is no task that would have to be waited for, so `sync` changes nothing.
cmd_result_t pw_stop(int unit, int) {
    return Shell::instance().watching_set(unit, false) ? kOk : kFail;
}
