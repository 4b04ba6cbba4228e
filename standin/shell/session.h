// The shell: running lines of commands, and what it remembers between them.
//
// One shell a process, for every thread that asks. Commands run side by side, and no lock is held
// while one does: it may reach an object of Python, and wait for a thread that waits for the shell.
// Nesting and the words of files belong to the thread, all else is shared.
//
// Results: the last command's result is the line's, and `$?`. A command that fails does not keep
// the rest of its line from running, CMD_EXIT and CMD_INTR do. A line of nothing is CMD_OK.
//
// Settings of the shell are the variables of sdk/variables.h:
//   sh_set_rcload         0: no start-up file is loaded by diag_rc_load
//   sh_set_rcerror        not 0: a file ends at its first command that fails
//   sh_set_lperror        the same for `loop` and `for`
//   sh_set_iferror        not 0: `if` with a bad condition fails; 0: it counts as false
//   sh_set_rctest         not 0: the commands of files are printed, not run
//   sh_set_more_lines     lines that a terminal shows before it asks to go on; 0 never asks, below
//   0
//                         after what its window holds
//   sh_set_report_time    not 0: prints how long each command of the user took
//   sh_set_report_status  not 0: prints the result of each command that did not end in CMD_OK
//   sh_rcload_depth       how many files are being run, one inside the other; at most 16
#pragma once

#include <atomic>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "native/values.h"
#include "sdk/constants.h"
#include "sdk/diag/shell_types.h"
#include "standin/shell/reader.h"

namespace standin {

// Results as the table of commands wants them.
inline constexpr cmd_result_t kOk{CMD_OK};
inline constexpr cmd_result_t kFail{CMD_FAIL};
inline constexpr cmd_result_t kUsage{CMD_USAGE};
inline constexpr cmd_result_t kNotFound{CMD_NFND};
inline constexpr cmd_result_t kExit{CMD_EXIT};
inline constexpr cmd_result_t kInterrupted{CMD_INTR};
inline constexpr cmd_result_t kNotImplemented{CMD_NOTIMPL};

inline constexpr std::size_t kFileDepth = 16;  // files within files
inline constexpr int kCommandDepth = 64;       // commands within commands

// "CMD_FAIL"
const char *result_name(int result);

class Shell {
  public:
    static Shell &instance();

    // Runs a line, `unit` where it names none. A null line is CMD_FAIL.
    cmd_result_t run(int unit, const char *line);

    // The same for a line that a person typed: words may be cut short to what is unique.
    cmd_result_t run_typed(int unit, const std::string &line);

    // Runs a line as far as its first command that fails, and answers that result; CMD_FAIL
    // without a word run for a unit that is not attached.
    cmd_result_t run_checked(int unit, const char *line);

    // Runs the lines of a file, with `words` as its $1, $2 ... With `add_rc`, ".rc" is put behind
    // a name without it. CMD_NFND when there is no such file; else the last command's result, or
    // that of the first one that failed when sh_set_rcerror is not 0.
    cmd_result_t run_file(int unit, const std::string &path, const std::vector<std::string> &words,
                          bool add_rc);

    // Variables of the unit that sh_swap_unit_vars chose last. An unknown one reads as "".
    std::string variable(std::string_view name) const;
    void variable_set(const std::string &name, const std::string &value);
    bool variable_remove(const std::string &name);
    std::map<std::string, std::string> variables() const;
    void swap_variables(int unit);

    // The unit for lines that name none, in the interactive shell.
    int unit() const { return unit_; }
    void unit_set(int unit) { unit_ = unit; }

    // The start-up file of a unit; an empty name is none.
    std::optional<std::string> start_file(int unit) const;
    void start_file_set(int unit, const std::string &name);

    // Whether the packet watcher of a unit runs; false when the setting was that already.
    bool watching(int unit) const;
    bool watching_set(int unit, bool on);

  private:
    Shell() = default;
    enum class Manner : std::uint8_t { kPlain, kChecked, kTyped };
    cmd_result_t run_line(int unit, std::string_view line, Manner manner);
    cmd_result_t run_command(int unit, std::string_view text, bool typed);
    cmd_result_t run_words(const std::string &text, int unit, bool typed);
    cmd_result_t run_lines(int unit, const std::string &name, std::string_view text);
    cmd_result_t run_piped(int unit, const Words &words, const std::string &text, bool typed);
    cmd_result_t call(int unit, const Words &words, const std::string &text, bool typed);

    std::atomic<int> unit_ = 0;
    std::atomic<int> result_ = CMD_OK;

    mutable std::mutex lock_;  // guards the rest
    std::map<int, std::map<std::string, std::string>> variables_;
    int variables_unit_ = 0;
    std::map<int, std::string> start_files_;
    std::set<int> watching_;
};

// Whether the library has this unit.
bool unit_attached(int unit);
// The attached units, ascending.
std::vector<int> attached_units();

}  // namespace standin
