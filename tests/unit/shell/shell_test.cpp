// The shell: whole sessions, files, variables, interrupts.
#include <pthread.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <thread>

#include "diag_fixture.h"
#include "helper/device.h"
#include "helper/shell.h"
#include "helper/shell_cxx.h"
#include "sdk/constants.h"
#include "sdk/diag/format.h"
#include "sdk/diag/parse.h"
#include "sdk/diag/shell.h"
#include "sdk/diag/text.h"
#include "sdk/soc/init.h"
#include "sdk/variables.h"
#include "standin/base/config_store.h"
#include "standin/base/output.h"
#include "standin/chapters/hooks.h"
#include "standin/shell/complete.h"
#include "standin/shell/history.h"
#include "standin/shell/interactive.h"
#include "standin/shell/interrupt.h"
#include "standin/shell/manual.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

// A process with one started switch, unit 0, and a fresh shell.
class ShellTest : public ::testing::Test {
  protected:
    void SetUp() override {
        standin_reset();
        config_clear();
        config_files_set({std::string(kConfigFile), {}});
        ASSERT_EQ(addOmbraDevice(0, 1, 0, 0), 0);
        ASSERT_EQ(soc_init(0), BCM_E_NONE);
        settings({0, 0, 0, 0, 0, 0, 0});
        sh_set_rcload = 1;
    }
    void TearDown() override {
        settings({0, 0, 0, 0, 0, 0, 0});
        for (const auto &variable : Shell::instance().variables())
            Shell::instance().variable_remove(variable.first);
        Shell::instance().start_file_set(0, "");
        Shell::instance().watching_set(0, false);
        config_clear();
        standin_reset();
    }

    void settings(std::array<int, 7> values) {
        int *all[] = {&sh_set_rcerror,    &sh_set_lperror,     &sh_set_iferror,      &sh_set_rctest,
                      &sh_set_more_lines, &sh_set_report_time, &sh_set_report_status};
        for (std::size_t at = 0; at < values.size(); ++at) *all[at] = values[at];
    }

    int run(const char *line) { return sh_process_command(0, Text(line)); }
    std::string output(const char *line) { return sdc(0, Text(line)).stdString(); }

    Directory directory_;
};

// Runs the lines of a session file and gives the session as it went:
//   $ a command, as a program gives it      > as a person types it, prefixes and all
//   ? what may stand behind these words     + what Tab adds to these, in brackets
//   @ the shortest beginnings of commands   # a comment
std::string replay(const std::string &session) {
    std::string went;
    for (std::size_t at = 0; at < session.size();) {
        std::size_t end = session.find('\n', at);
        std::string line = session.substr(at, end - at);
        at = end == std::string::npos ? session.size() : end + 1;
        const std::string words = line.size() < 2 ? line : line.substr(2);
        const auto typed = [&] {
            Capture capture;
            Shell::instance().run_typed(0, words);
            return capture.text();
        };
        if (line.starts_with("$ "))
            went += line + '\n' + sdc(0, Text(words)).stdString();
        else if (line.starts_with("> "))
            went += line + '\n' + typed();
        else if (line.starts_with("? "))
            went += line + '\n' + completion_text(complete_line(words, 0), 0);
        else if (line.starts_with("+ "))
            went += "+ " + words.substr(0, words.find("[")) + '[' +
                    common_end(complete_line(words.substr(0, words.find("[")), 0),
                               words.substr(0, words.find("["))) +
                    "]\n";
        else if (line.starts_with("@ "))
            went += line + '\n' + prefixes_text();
        else if (line.starts_with("# "))
            went += line + '\n';
    }
    return went;
}

class ShellSession : public ShellTest, public ::testing::WithParamInterface<const char *> {};

TEST_P(ShellSession, GoesAsItDidBefore) {
    std::string path = std::string(GOLDEN_DIR) + '/' + GetParam() + ".txt";
    std::string session = content(path);
    std::string went = replay(session);
    if (std::getenv("OMBRA_ACCEPT") != nullptr && went != session) {
        ASSERT_TRUE(write_file(path, path + ".new", went));
        return;
    }
    EXPECT_EQ(went, session) << "Look at the difference. If it is meant, run this test with "
                                "OMBRA_ACCEPT=1 and say why in the commit.";
}

INSTANTIATE_TEST_SUITE_P(Golden, ShellSession,
                         ::testing::Values("language", "ports", "switching", "registers", "system",
                                           "help", "refusals", "filters", "typing", "groups",
                                           "routing", "rules", "state", "packets"));

// Each example of a form is read, and each table keeps the kinds of its columns in JSON.
TEST_F(ShellTest, EveryFormTakesItsExampleAndEveryTableIsJson) {
    static const char *const kLeaves[] = {"exit",        "rcload", "config save",
                                          "config load", "watch",  "trace log"};
    run("vlan create 10 ports=xe1-xe4; l2 add mac=02:00:00:00:00:0a vlan=10 port=xe3 static; "
        "stg create 5; setenv uplink ce64; trace level bcm l2 debug; config set port_speed.1=1; "
        "pw start");
    for (const Command *command : all_commands()) {
        for (const Form &form : command->forms) {
            const std::string example = form.example;
            if (std::any_of(std::begin(kLeaves), std::end(kLeaves),
                            [&](const char *one) { return example.starts_with(one); }))
                continue;
            Capture capture;
            const int result = run(form.example);
            EXPECT_TRUE(result == CMD_OK || result == CMD_FAIL) << example << capture.text();
            if (form.columns.empty() || result != CMD_OK) continue;
            const std::string words = example.substr(0, example.find(" | "));
            const auto rows = nlohmann::json::parse(output((words + " | json").c_str()));
            for (const auto &row : rows) {
                for (const auto &[key, value] : row.items()) {
                    const auto column =
                        std::find_if(form.columns.begin(), form.columns.end(),
                                     [&](const RowColumn &one) { return key == one.key; });
                    if (column == form.columns.end() || value.is_null()) continue;
                    const bool kinds[] = {value.is_number(), value.is_string(), value.is_boolean(),
                                          value.is_array()};
                    EXPECT_TRUE(kinds[static_cast<int>(column->kind)]) << words << ' ' << key;
                }
            }
        }
    }
    run("trace level * * warning; trace capture off; trace bus off; trace log off");
}

TEST_F(ShellTest, FiltersWriteFilesAndJson) {
    const std::string file = directory_.file("out");
    EXPECT_EQ(output(("echo one > " + file + "; echo two >> " + file).c_str()), "");
    EXPECT_EQ(content(file), "one\ntwo\n");
    EXPECT_EQ(output("config set x='\x1b\xff'; config show | columns value,name"),
              "value     name\n--------  ----\n\\x1b\\xff  x\n");
    EXPECT_EQ(output("config show | json"),
              "[\n {\"name\":\"x\",\"value\":\"\\u001b\\ufffd\","
              "\"setting\":\"x=\\\"\\\\x1b\\\\xff\\\"\"}\n]\n");
    EXPECT_EQ(run("echo x > /nowhere/x"), CMD_FAIL);
    EXPECT_EQ(run("vlan destroy 99 | json"), CMD_FAIL);
}

TEST_F(ShellTest, HistoryIsKeptAndPutIn) {
    const std::string file = directory_.file("history");
    config_set("diag_shell_history_file", file);
    config_set("diag_shell_history", "2");
    LineHistory first;
    EXPECT_EQ(first.expand("!!"), "");
    for (const char *line : {"ps xe1", "ps xe1", " secret", "", "vlan", "l2"}) first.add(line);
    EXPECT_EQ(content(file), "ps xe1\nvlan\nl2\n");
    LineHistory second;
    EXPECT_EQ(second.lines(), (std::vector<std::string>{"vlan", "l2"}));
    EXPECT_EQ(second.expand("!! | count"), "l2 | count");
    EXPECT_FALSE(second.expand("echo '!!' \\!!"));
    for (const char *line : {"a", "b", "c"}) second.add(line);
    EXPECT_EQ(LineHistory().lines(), (std::vector<std::string>{"b", "c"}));
    EXPECT_EQ(content(file), "b\nc\n");
}

TEST(Rows, WidthsAreThoseOfTheTerminal) {
    EXPECT_EQ(text_width("a\u00e4\u4e2d\u0065\u0301\xff"), 6u);
    static constexpr RowColumn kColumns[] = {{"a", "A", CellKind::kText},
                                             {"b", ">B", CellKind::kNumber}};
    Rows rows(kColumns);
    rows.row({"\u4e2d\u4e2d\u4e2d\u4e2d\u4e2d", 1});
    rows.row({"b\n", 20});
    EXPECT_EQ(rows.text(),
              "A            B\n----------  --\n"
              "\u4e2d\u4e2d\u4e2d\u4e2d\u4e2d   1\nb\\x0a       20\n");
    EXPECT_EQ(rows.text(12),
              "A          B\n--------  --\n"
              "\u4e2d\u4e2d...    1\nb\\x0a     20\n");
}

TEST_F(ShellTest, ResultCodes) {
    EXPECT_EQ(run(""), CMD_OK);
    EXPECT_EQ(run("  # only a comment"), CMD_OK);
    EXPECT_EQ(run("echo -n ''"), CMD_OK);
    EXPECT_EQ(run("exit; echo not reached"), CMD_EXIT);
    EXPECT_EQ(sh_process_command(0, nullptr), CMD_FAIL);
    EXPECT_EQ(sh_process_command_check(0, nullptr), CMD_FAIL);
    Capture capture;
    EXPECT_EQ(run("frobnicate"), CMD_NFND);
    EXPECT_EQ(run("echo 'open"), CMD_USAGE);
    EXPECT_EQ(run("vlan create x"), CMD_USAGE);
    EXPECT_EQ(run("vlan destroy 77"), CMD_FAIL);
    EXPECT_EQ(run("vlan destroy 77; echo went on"), CMD_OK);
    EXPECT_EQ(sh_process_command_check(0, Text("vlan destroy 77; echo not reached")), CMD_FAIL);
    EXPECT_EQ(sh_process_command_check(9, Text("echo not reached")), CMD_FAIL);
    EXPECT_EQ(korvel_sh_process_command(5, Text("echo -n $unit")), CMD_OK);
    EXPECT_EQ(capture.text().find("not reached"), std::string::npos);
    EXPECT_NE(capture.text().find("went on\n"), std::string::npos);
    EXPECT_EQ(capture.text().back(), '5');
}

TEST_F(ShellTest, CapturesNestAndEmptyOutputIsEmpty) {
    Capture outer;
    EXPECT_EQ(output("echo inner"), "inner\n");
    EXPECT_EQ(output("setenv a b"), "");
    EXPECT_EQ(sdc(0, nullptr).stdString(), "");
    EXPECT_EQ(outer.text(), "");
}

TEST_F(ShellTest, FilesRunWithTheirWords) {
    std::string inner = directory_.file_with("inner", "echo inner $1\nexit\necho not reached\n");
    std::string outer = directory_.file_with(
        "outer.rc", "# comment\necho $1 \\\n and $2\nrcload " + inner + " deep\necho back $1\n");
    EXPECT_EQ(output(("rcload " + outer + " 'a b' c").c_str()),
              "a b and c\ninner deep\nback a b\n");
    Capture capture;
    EXPECT_EQ(sh_rcload_file(0, nullptr, Text(outer.substr(0, outer.size() - 3)), 1), CMD_OK);
    EXPECT_EQ(sh_rcload_file(0, nullptr, Text(outer.substr(0, outer.size() - 3)), 0), CMD_NFND);
    EXPECT_EQ(sh_rcload_file(0, nullptr, nullptr, 0), CMD_FAIL);
    EXPECT_EQ(sh_rcload_depth, 0);
}

TEST_F(ShellTest, FilesStopAtAnErrorOnlyWhenTold) {
    std::string file = directory_.file_with("f", "nonsense\necho on\n");
    EXPECT_EQ(output(("rcload " + file).c_str()),
              "nonsense: no such command; 'help' lists them\n" + file + ":1: CMD_NFND\non\n");
    sh_set_rcerror = 1;
    EXPECT_EQ(run(("rcload " + file).c_str()), CMD_NFND);
    sh_set_rctest = 1;
    EXPECT_EQ(output(("rcload " + file).c_str()), file + ":1: nonsense\n" + file + ":2: echo on\n");
}

TEST_F(ShellTest, ACommentEndsWithItsLine) {
    std::string file = directory_.file_with(
        "f", "# a comment \\\necho one # another \\\necho 'two # \\\nthree'\n");
    EXPECT_EQ(output(("rcload " + file).c_str()), "one\ntwo # three\n");
}

TEST_F(ShellTest, FilesThatLoadThemselvesEnd) {
    std::string file = directory_.file("self");
    ASSERT_TRUE(write_file(file, file + ".new", "rcload " + file + "\n"));
    EXPECT_NE(output(("rcload " + file).c_str()).find("nested too deeply"), std::string::npos);
    EXPECT_EQ(sh_rcload_depth, 0);
    EXPECT_NE(output("setenv x 'if 1 $x'; loop 1 'loop 1 \"loop 1 x\"'").size(), 0u);
}

TEST_F(ShellTest, StartFiles) {
    char const *name = "unset";
    diag_rc_get(0, &name);
    EXPECT_EQ(name, nullptr);
    EXPECT_EQ(diag_rc_load(0), BCM_E_NONE) << "no file, nothing to do";
    std::string file = directory_.file_with("rc", "setenv loaded $unit\n");
    diag_rc_set(0, file.c_str());
    diag_rc_get(0, &name);
    EXPECT_EQ(name, file);
    std::thread([] { diag_rc_set(0, "another file with a name that is longer"); }).join();
    EXPECT_EQ(name, file) << "lent until this thread asks again";
    diag_rc_set(0, file.c_str());
    sh_set_rcload = 0;
    EXPECT_EQ(diag_rc_load(0), BCM_E_NONE);
    EXPECT_EQ(Shell::instance().variable("loaded"), "");
    sh_set_rcload = 1;
    EXPECT_EQ(diag_rc_load(0), BCM_E_NONE);
    EXPECT_EQ(Shell::instance().variable("loaded"), "0");
    diag_rc_set(0, "/nowhere/rc");
    Capture capture;
    EXPECT_EQ(diag_rc_load(0), BCM_E_NOT_FOUND);
    diag_rc_get(0, nullptr);
    diag_rc_set(0, nullptr);
    EXPECT_EQ(diag_rc_load(0), BCM_E_NONE);
}

TEST_F(ShellTest, VariablesBelongToAUnit) {
    run("setenv x zero");
    sh_swap_unit_vars(1);
    EXPECT_EQ(output("echo <$x>"), "<>\n");
    run("setenv x one");
    sh_swap_unit_vars(0);
    EXPECT_EQ(output("echo <$x>"), "<zero>\n");
    sh_swap_unit_vars(1);
    run("unsetenv x");
    sh_swap_unit_vars(0);
}

TEST_F(ShellTest, AttachedUnits) {
    Capture capture;
    EXPECT_EQ(sh_check_attached("here", 0), BCM_E_NONE);
    EXPECT_EQ(sh_check_attached("there", 7), BCM_E_UNIT);
    EXPECT_EQ(sh_check_attached(nullptr, -1), BCM_E_UNIT);
    EXPECT_EQ(capture.text(), "there: unit 7 is not attached\nunit -1 is not attached\n");
}

TEST_F(ShellTest, PacketWatcher) {
    EXPECT_EQ(pw_running(0), 0);
    EXPECT_EQ(pw_stop(0, 1), CMD_FAIL);
    EXPECT_EQ(run("pw start"), CMD_OK);
    EXPECT_EQ(pw_running(0), 1);
    EXPECT_EQ(pw_stop(0, 0), CMD_OK);
    EXPECT_EQ(pw_running(0), 0);
}

TEST_F(ShellTest, InterruptEndsALoopAndReachesItsFormerOwner) {
    static volatile std::sig_atomic_t passed_on = 0;
    auto before = std::signal(SIGINT, [](int) { passed_on = passed_on + 1; });
    run("setenv n 0");
    {
        // Inside of a scope the signal is marked; the loop sees it before its next turn.
        InterruptScope scope;
        std::raise(SIGINT);
        EXPECT_EQ(passed_on, 0);
        EXPECT_EQ(run("loop 5 'setenv n 1'"), CMD_INTR);
    }
    EXPECT_EQ(passed_on, 1);
    EXPECT_EQ(Shell::instance().variable("n"), "0");
    {
        InterruptScope scope;
        sh_block_ctrl_c(1);
        std::raise(SIGINT);
        EXPECT_EQ(run("setenv n 2"), CMD_OK);
        sh_ctrl_c_take();
        sh_block_ctrl_c(0);
        EXPECT_EQ(run("setenv n 3"), CMD_OK);
    }
    EXPECT_EQ(passed_on, 1);
    std::signal(SIGINT, before);
}

TEST_F(ShellTest, ReturnPointsAreCountedAndNotUsed) {
    jmp_buf point;
    sh_push_ctrl_c(nullptr);
    EXPECT_EQ(interrupt_points(), 0u);
    sh_push_ctrl_c(&point);
    EXPECT_EQ(interrupt_points(), 1u);
    sh_pop_ctrl_c();
    sh_pop_ctrl_c();
    EXPECT_EQ(interrupt_points(), 0u);
}

// Lines of a person, and what the input does between them.
class Script : public LineSource {
  public:
    struct Step {
        LineEnd end;
        std::string line;
    };
    Script(std::vector<Step> steps, bool terminal)
        : steps_(std::move(steps)), terminal_(terminal) {}
    LineEnd read(const std::string &prompt, std::string &line) override {
        prompts += prompt;
        ++reads;
        if (at_ == steps_.size()) return LineEnd::kEnd;
        line = steps_[at_].line;
        return steps_[at_++].end;
    }
    bool terminal() const override { return terminal_; }
    std::string prompts;
    std::atomic<int> reads = 0;

  private:
    std::vector<Step> steps_;
    bool terminal_;
    std::size_t at_ = 0;
};

TEST_F(ShellTest, InteractiveSession) {
    ASSERT_EQ(addOmbraDevice(0, 2, 0, 0), 1);
    Capture capture;
    Script script({{LineEnd::kLine, "echo a \\"},
                   {LineEnd::kLine, "b"},
                   {LineEnd::kInterrupt, ""},
                   {LineEnd::kEnd, ""},
                   {LineEnd::kLine, "3:"},
                   {LineEnd::kLine, "1:"},
                   {LineEnd::kLine, "echo $unit"},
                   {LineEnd::kLine, "exit"},
                   {LineEnd::kLine, "echo not reached"}},
                  true);
    EXPECT_EQ(interact(script, 0, "S", false), CMD_EXIT);
    EXPECT_EQ(script.prompts, "S.0> > S.0> S.0> S.0> S.0> S.1> S.1> ");
    EXPECT_EQ(capture.text(), "a b\n\n\n'exit' leaves the shell\nunit 3 is not attached\n1\n");
}

// What a person types at the pager is that of a pipe, which stays empty until the signal comes.
TEST_F(ShellTest, AnInterruptAtThePagerEndsNoOtherCommand) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    int input = ::dup(STDIN_FILENO);
    ::dup2(ends[0], STDIN_FILENO);
    sh_set_more_lines = 1;
    auto before = std::signal(SIGINT, [](int) {});
    Script script({{LineEnd::kLine, "unit"}, {LineEnd::kLine, "setenv after yes"}}, true);
    std::thread interrupting([&script, person = ::pthread_self()] {
        while (script.reads < 2) {
            ::usleep(20'000);
            if (script.reads == 1) ::pthread_kill(person, SIGINT);
        }
    });
    EXPECT_EQ(interact(script, 0, "S", true), CMD_OK);
    interrupting.join();
    std::signal(SIGINT, before);
    EXPECT_EQ(Shell::instance().variable("after"), "yes");
    ::dup2(input, STDIN_FILENO);
    for (int fd : {ends[0], ends[1], input}) ::close(fd);
}

TEST_F(ShellTest, InputThatStaysAtItsEndEndsTheShell) {
    Capture capture;
    Script terminal({}, true);
    EXPECT_EQ(interact(terminal, 0, "S", true), CMD_OK);
    EXPECT_EQ(terminal.prompts, "S.0> ");
    Script stubborn({}, true);
    EXPECT_EQ(interact(stubborn, 0, "S", false), CMD_OK);
    EXPECT_EQ(stubborn.prompts, "S.0> S.0> S.0> ");
    Script pipe({}, false);
    EXPECT_EQ(interact(pipe, 0, "S", false), CMD_OK);
    EXPECT_EQ(pipe.prompts, "S.0> ");
}

TEST_F(ShellTest, FormattersUseTheNamesOfTheUnit) {
    bcm_pbmp_t pbmp{};
    ASSERT_EQ(parse_bcm_pbmp(0, Text("1-3,64"), &pbmp), BCM_E_NONE);
    Room room(64);
    format_bcm_pbmp(0, room.data(), room.size(), pbmp);
    std::string named = room.text();
    EXPECT_EQ(named.find_first_of("0123456789"), 2u) << named;
    bcm_pbmp_t back{};
    EXPECT_EQ(parse_bcm_pbmp(0, Text(named), &back), BCM_E_NONE) << named;
    EXPECT_EQ(port_set_of(back), port_set_of(pbmp));
    int port = -1;
    EXPECT_EQ(parse_port(0, Text("500"), &port), BCM_E_PORT);
    EXPECT_EQ(parse_port(0, Text("xe1"), &port), BCM_E_NONE);
}

TEST_F(ShellTest, DumpsAddresses) {
    bcm_l2_addr_t row{};
    row.mac[0] = 2;
    row.vid = 10;
    row.port = 3;
    row.flags = 1U << 30;
    bcm_l2_cache_addr_t cached{};
    cached.dest_port = 4;
    Capture capture;
    dump_l2_addr(0, Text("row: "), &row);
    dump_l2_addr(9, nullptr, &row);
    dump_l2_cache_addr(0, Text(""), &cached);
    dump_l2_addr(0, nullptr, nullptr);
    dump_l2_cache_addr(0, nullptr, nullptr);
    EXPECT_EQ(capture.text(),
              "row: mac=02:00:00:00:00:00 vlan=10 modid=0 port=xe3 trunk=0 flags=0x40000000\n"
              "mac=02:00:00:00:00:00 vlan=10 modid=0 port=3 trunk=0 flags=0x40000000\n"
              "mac=00:00:00:00:00:00/00:00:00:00:00:00 vlan=0/0x0 src=cpu0 dst=0:xe4 trunk=0 "
              "prio=0 flags=0x0\n");
}

TEST_F(ShellTest, ConfiguresFromAFileChangesAndReloads) {
    std::string file = directory_.file_with(
        "config", "# ports\nport_speed.1=25000\nport_speed=10000\nbroken line\nname=\"a b\"\n");
    config_files_set({file, file + ".tmp"});
    std::string before = output("config load; config show");
    EXPECT_NE(before.find("port_speed.1=25000\n"), std::string::npos);
    run("config set port_speed.1=1000 extra='x # y'; config delete name; config save");
    std::string state = output("config show");
    run("config clear");
    EXPECT_EQ(output("config show"), "");
    run("config load");
    EXPECT_EQ(output("config show"), state);
    EXPECT_EQ(state, "extra=\"x # y\"\nport_speed=10000\nport_speed.1=1000\n");
}

}  // namespace
}  // namespace standin
