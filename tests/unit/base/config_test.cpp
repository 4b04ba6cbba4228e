// The configuration store and the text form of its file.
#include <sys/stat.h>

#include <thread>

#include "diag_fixture.h"
#include "helper/platform.h"
#include "sdk/constants.h"
#include "sdk/sal/config.h"
#include "sdk/soc/property.h"
#include "standin/base/config_store.h"
#include "standin/base/log.h"
#include "standin/base/output.h"

namespace standin {
namespace {

class ConfigStore : public ::testing::Test {
  protected:
    void SetUp() override { config_clear(); }
    void TearDown() override {
        config_clear();
        config_files_set({std::string(kConfigFile), {}});
    }

    std::string text_of_store() {
        std::string text;
        for (const ConfigEntry &entry : config_entries())
            text += format_config_line(entry.name, entry.value);
        return text;
    }

    Directory directory_;
};

TEST(ConfigText, ReadsEveryForm) {
    ConfigText read = parse_config_text(
        "# comment \\\n"
        "a=1\r\n"
        "  b = two words   # and a comment\n"
        "c=no#comment\n"
        "\n"
        "d=\"  kept # \\\"\\\\ \\n\\x41 \" # comment\n"
        "e=first, \\\n"
        "   second, \\\n"
        "   third\n"
        "f=\n"
        "port{7}.0=x\n"
        "a=last");
    EXPECT_TRUE(read.faults.empty());
    std::vector<std::pair<std::string, std::string>> pairs;
    for (const ConfigEntry &entry : read.entries) pairs.emplace_back(entry.name, entry.value);
    EXPECT_EQ(pairs,
              (std::vector<std::pair<std::string, std::string>>{{"a", "1"},
                                                                {"b", "two words"},
                                                                {"c", "no#comment"},
                                                                {"d", "  kept # \"\\ \nA "},
                                                                {"e", "first, second, third"},
                                                                {"f", ""},
                                                                {"port{7}.0", "x"},
                                                                {"a", "last"}}));
    EXPECT_EQ(read.entries[4].line, 7);
    EXPECT_EQ(read.entries[5].line, 10);
}

TEST(ConfigText, LeavesOutBrokenLinesAlone) {
    struct Case {
        const char *line;
        const char *fault;
    };
    for (const Case &one :
         {Case{"no equals", "no '=' after the name"}, Case{"=value", "bad name ''"},
          Case{"two words=1", "bad name 'two words'"}, Case{"q=\"open", "no closing quote"},
          Case{"q=\"a\" b", "text after the closing quote"},
          Case{"q=\"\\q\"", "unknown escape in the quoted value"},
          Case{"q=\"\\x00\"", "unknown escape in the quoted value"},
          Case{"q=\"\\x4", "unknown escape in the quoted value"}}) {
        ConfigText read = parse_config_text(std::string("a=1\n\n") + one.line + "\nb=2\n");
        ASSERT_EQ(read.faults.size(), 1u) << one.line;
        EXPECT_EQ(read.faults[0].line, 3) << one.line;
        EXPECT_EQ(read.faults[0].text, one.fault);
        EXPECT_EQ(read.entries.size(), 2u) << one.line;
    }
    EXPECT_EQ(parse_config_text(std::string("a=\0b\n", 5)).faults.at(0).text, "a zero byte");
}

TEST(ConfigText, EveryValueSurvivesItsLine) {
    Random random;
    std::vector<std::string> values = {"",  " ",    "#",  "a # b", "\"",   "\\",       "a\\",
                                       "=", "\n\n", "\t", "x\ty",  "\xff", "\x01\x7f", "\\\n"};
    for (int at = 0; at < 300; ++at) {
        std::string value;
        for (std::uint32_t left = random.below(12); left > 0; --left)
            value += static_cast<char>(1 + random.below(255));
        values.push_back(value);
    }
    for (const std::string &value : values) {
        ConfigText read = parse_config_text(format_config_line("n", value));
        ASSERT_EQ(read.entries.size(), 1u) << value;
        EXPECT_EQ(read.entries[0].value, value);
    }
}

TEST_F(ConfigStore, SetGetRemove) {
    EXPECT_EQ(sal_config_get("absent"), nullptr);
    EXPECT_EQ(sal_config_set(Text("a"), Text("1")), BCM_E_NONE);
    EXPECT_EQ(sal_config_set(Text("empty"), Text("")), BCM_E_NONE);
    EXPECT_STREQ(sal_config_get("a"), "1");
    EXPECT_STREQ(sal_config_get("empty"), "");
    EXPECT_EQ(sal_config_set(Text("a"), nullptr), BCM_E_NONE);
    EXPECT_EQ(sal_config_get("a"), nullptr);
    EXPECT_EQ(sal_config_set(Text("a"), nullptr), BCM_E_NOT_FOUND);
}

TEST_F(ConfigStore, RefusesNullAndBadNames) {
    EXPECT_EQ(sal_config_set(nullptr, Text("1")), BCM_E_PARAM);
    EXPECT_EQ(sal_config_set(Text(""), Text("1")), BCM_E_PARAM);
    EXPECT_EQ(sal_config_set(Text("a=b"), Text("1")), BCM_E_PARAM);
    EXPECT_EQ(sal_config_set(Text("a b"), nullptr), BCM_E_PARAM);
    EXPECT_EQ(sal_config_get(nullptr), nullptr);
    EXPECT_EQ(sal_config_file_set(nullptr, "t"), BCM_E_PARAM);
    EXPECT_EQ(sal_config_file_get(nullptr, nullptr), BCM_E_PARAM);
    EXPECT_EQ(sal_config_get_next(nullptr, nullptr), BCM_E_PARAM);
    EXPECT_FALSE(config_set("a", std::string_view("x\0y", 3)));
    EXPECT_TRUE(config_entries().empty());
}

TEST_F(ConfigStore, WalksInOrderWhileItChanges) {
    for (const char *name : {"b", "a", "c"}) config_set(name, std::string(name) + "!");
    char *name = nullptr;
    char *value = nullptr;
    std::string walked;
    while (sal_config_get_next(&name, &value) == BCM_E_NONE) {
        walked += std::string(name) + value;
        config_remove(name);
    }
    EXPECT_EQ(walked, "aa!bb!cc!");
    EXPECT_EQ(name, nullptr);
    EXPECT_EQ(value, nullptr);
}

TEST_F(ConfigStore, ChangeSaveReload) {
    std::string file = directory_.file_with("config", "a=1\nb=2\nbroken\nc=3 # three\n");
    ASSERT_EQ(sal_config_file_set(file.c_str(), nullptr), BCM_E_NONE);
    EXPECT_EQ(sal_config_refresh(), BCM_E_CONFIG);  // for the broken line alone
    EXPECT_EQ(text_of_store(), "a=1\nb=2\nc=3\n");
    config_set("b", " padded ");
    config_set("d", "new\nline");
    config_remove("a");
    std::string state = text_of_store();
    ASSERT_EQ(sal_config_save(nullptr, nullptr, 0), BCM_E_NONE);
    EXPECT_EQ(sal_config_flush(), BCM_E_NONE);
    EXPECT_EQ(text_of_store(), "");
    EXPECT_EQ(sal_config_refresh(), BCM_E_NONE);
    EXPECT_EQ(text_of_store(), state);
}

TEST_F(ConfigStore, RefreshForgetsWhatTheFileDoesNotSay) {
    std::string file = directory_.file_with("config", "a=1\n");
    sal_config_file_set(file.c_str(), nullptr);
    config_set("b", "2");
    EXPECT_EQ(sal_config_init(), BCM_E_NONE);
    EXPECT_EQ(text_of_store(), "a=1\nb=2\n");
    EXPECT_EQ(sal_config_refresh(), BCM_E_NONE);
    EXPECT_EQ(text_of_store(), "a=1\n");
    sal_config_file_set(directory_.file("none").c_str(), nullptr);
    EXPECT_EQ(sal_config_refresh(), BCM_E_NOT_FOUND);
    EXPECT_EQ(sal_config_init(), BCM_E_NONE);
    EXPECT_EQ(text_of_store(), "a=1\n");
}

TEST_F(ConfigStore, ChipPropertiesAreAdded) {
    std::string file = directory_.file_with("soc", "b=2\nport_speed.1=25000\n");
    config_set("a", "1");
    config_set("b", "1");
    TesselApiSetSocProperties(file.c_str());
    TesselApiSetSocProperties(nullptr);
    EXPECT_EQ(text_of_store(), "a=1\nb=2\nport_speed.1=25000\n");
}

TEST_F(ConfigStore, SavesByPatternAndAppends) {
    for (const char *name : {"port_speed.0", "port_speed.1", "l2_size", "zeta"})
        config_set(name, "1");
    std::string file = directory_.file("saved");
    ASSERT_EQ(sal_config_save(Text(file), Text("port_*"), 0), BCM_E_NONE);
    EXPECT_EQ(content(file), "port_speed.0=1\nport_speed.1=1\n");
    ASSERT_EQ(sal_config_save(Text(file), Text("z?ta"), 1), BCM_E_NONE);
    EXPECT_EQ(content(file), "port_speed.0=1\nport_speed.1=1\nzeta=1\n");
    std::string open_end = directory_.file_with("open_end", "a=1");
    ASSERT_EQ(sal_config_save(Text(open_end), Text("zeta"), 1), BCM_E_NONE);
    EXPECT_EQ(content(open_end), "a=1\nzeta=1\n");
}

TEST_F(ConfigStore, SaveKeepsPermissionsAndRefusesWhatItCannotRead) {
    config_set("a", "1");
    std::string file = directory_.file_with("secret", "old=1\n");
    ASSERT_EQ(::chmod(file.c_str(), 0600), 0);
    ASSERT_EQ(sal_config_save(Text(file), nullptr, 0), BCM_E_NONE);
    struct stat state {};
    ASSERT_EQ(::stat(file.c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777u, 0600u);
    log_level_set(kLayerSal, kSourceConfig, kSeverityOff);
    EXPECT_EQ(sal_config_save(Text("/tmp"), nullptr, 1), BCM_E_FAIL);
    EXPECT_EQ(sal_config_save(Text("/tmp"), nullptr, 0), BCM_E_FAIL);
    log_level_set(kLayerSal, kSourceConfig, kSeverityWarning);
}

TEST_F(ConfigStore, SaveFollowsLinksAndRefusesWhatIsNoPlainFile) {
    config_set("a", "1");
    std::string file = directory_.file_with("real", "old=1\n");
    ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
    std::string link = directory_.file("link");
    ASSERT_EQ(::symlink("real", link.c_str()), 0);
    ASSERT_EQ(sal_config_save(Text(link), nullptr, 1), BCM_E_NONE);
    EXPECT_EQ(content(file), "old=1\na=1\n");
    struct stat state {};
    ASSERT_EQ(::lstat(link.c_str(), &state), 0);
    EXPECT_TRUE(S_ISLNK(state.st_mode));
    ASSERT_EQ(::stat(file.c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777u, 0640u);
    std::string loop = directory_.file("loop");
    ASSERT_EQ(::symlink("loop", loop.c_str()), 0);
    std::string fifo = directory_.file("fifo");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    log_level_set(kLayerSal, kSourceConfig, kSeverityOff);
    for (const std::string &name : {fifo, loop})
        for (int append : {0, 1})
            EXPECT_EQ(sal_config_save(Text(name), nullptr, append), BCM_E_FAIL) << name;
    log_level_set(kLayerSal, kSourceConfig, kSeverityWarning);
    ASSERT_EQ(::lstat(fifo.c_str(), &state), 0);
    EXPECT_TRUE(S_ISFIFO(state.st_mode));
}

TEST_F(ConfigStore, SaveGoesOverNoFileOfOthers) {
    config_set("a", "1");
    std::string victim = directory_.file_with("victim", "untouched\n");
    std::string file = directory_.file("config");
    std::string planted = directory_.file("config.tmp");
    ASSERT_EQ(::symlink(victim.c_str(), planted.c_str()), 0);
    ASSERT_EQ(sal_config_file_set(file.c_str(), nullptr), BCM_E_NONE);
    ASSERT_EQ(sal_config_save(nullptr, nullptr, 0), BCM_E_NONE);
    struct stat state {};
    EXPECT_EQ(::lstat(planted.c_str(), &state), 0) << "not even looked at";
    // The name that was given is made anew.
    ASSERT_EQ(sal_config_file_set(file.c_str(), planted.c_str()), BCM_E_NONE);
    ASSERT_EQ(sal_config_save(nullptr, nullptr, 0), BCM_E_NONE);
    EXPECT_NE(::lstat(planted.c_str(), &state), 0);
    EXPECT_EQ(content(victim), "untouched\n");
    EXPECT_EQ(content(file), "a=1\n");
    ASSERT_EQ(::lstat(file.c_str(), &state), 0);
    EXPECT_TRUE(S_ISREG(state.st_mode));
    EXPECT_EQ(state.st_mode & 0777u, 0644u);
}

TEST_F(ConfigStore, FailedSaveLeavesTheOldFile) {
    std::string file = directory_.file_with("config", "old=1\n");
    sal_config_file_set(file.c_str(), "/nowhere/config.tmp");
    config_set("new", "1");
    log_level_set(kLayerSal, kSourceConfig, kSeverityOff);
    EXPECT_EQ(sal_config_save(nullptr, nullptr, 0), BCM_E_FAIL);
    log_level_set(kLayerSal, kSourceConfig, kSeverityWarning);
    EXPECT_EQ(content(file), "old=1\n");

    char const *name = nullptr;
    char const *temporary = nullptr;
    EXPECT_EQ(sal_config_file_get(&name, &temporary), BCM_E_NONE);
    EXPECT_EQ(name, file);
    EXPECT_STREQ(temporary, "/nowhere/config.tmp");
}

TEST_F(ConfigStore, DefaultsGiveWayToWhatIsSet) {
    config_set("diag_shell_prompt", "MINE");
    sal_config_init_defaults();
    EXPECT_EQ(config_get("diag_shell_prompt"), "MINE");
    EXPECT_EQ(config_get("diag_shell_history"), "200");
}

TEST_F(ConfigStore, PrintsItself) {
    config_set("a", "1");
    config_set("b", " ");
    Capture capture;
    sal_config_show();
    EXPECT_EQ(capture.text(), "a=1\nb=\" \"\n");
}

TEST_F(ConfigStore, PropertiesFallBackFromPortToUnitToName) {
    config_set("speed", "10");
    config_set("speed.1", "0x20");
    config_set("speed.7.1", "30");
    config_set("speed.2.2", "-1");
    config_set("speed.3", "fast");
    EXPECT_EQ(soc_property_bcm_port_get(0, 7, "speed", 5), 10u);
    EXPECT_EQ(soc_property_bcm_port_get(1, 6, "speed", 5), 32u);
    EXPECT_EQ(soc_property_bcm_port_get(1, 7, "speed", 5), 30u);
    EXPECT_EQ(soc_property_bcm_port_get(2, 2, "speed", 5), 0xffffffffu);
    EXPECT_EQ(soc_property_bcm_port_get(0, 7, "absent", 0xffffffff), 0xffffffffu);
    EXPECT_EQ(soc_property_bcm_port_get(0, 7, nullptr, 4), 4u);
    log_level_set(kLayerSal, kSourceConfig, kSeverityOff);
    EXPECT_EQ(soc_property_bcm_port_get(3, 0, "speed", 5), 5u);
    log_level_set(kLayerSal, kSourceConfig, kSeverityWarning);
}

TEST_F(ConfigStore, BitmapProperties) {
    config_set("ports", "1-3,35");
    config_set("ports.1", "0x1000000000000000000000000000000000005");
    pbmp_t list = soc_property_get_bcm_pbmp(0, "ports", 1);
    EXPECT_EQ(list.pbits[0], 0xeu);
    EXPECT_EQ(list.pbits[1], 8u);
    pbmp_t bitmap = soc_property_get_bcm_pbmp(1, "ports", 1);
    EXPECT_EQ(bitmap.pbits[0], 5u);
    EXPECT_EQ(bitmap.pbits[4], 1u << 16);
    EXPECT_EQ(soc_property_get_bcm_pbmp(0, "absent", 0).pbits[17], 0u);
    EXPECT_EQ(soc_property_get_bcm_pbmp(0, "absent", 1).pbits[17], 0xffffffffu);
    EXPECT_EQ(soc_property_get_bcm_pbmp(0, nullptr, 1).pbits[0], 0xffffffffu);
}

// The sanitizers watch this one; it proves nothing by itself but that nothing is lost.
TEST_F(ConfigStore, ServesSeveralThreads) {
    auto work = [](const char *name) {
        for (int at = 0; at < 500; ++at) {
            config_set(name, std::to_string(at));
            EXPECT_EQ(config_get(name), std::to_string(at));
            config_entries("*");
        }
    };
    std::thread one(work, "one");
    std::thread two(work, "two");
    one.join();
    two.join();
    EXPECT_EQ(config_get("one"), "499");
    EXPECT_EQ(config_get("two"), "499");
}

}  // namespace
}  // namespace standin
