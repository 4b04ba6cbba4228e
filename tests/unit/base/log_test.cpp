// Levels, captures and descriptors of the log and the trace.
#include "standin/base/log.h"
#include "standin/base/output.h"

#include <fcntl.h>

#include "diag_fixture.h"
#include "helper/platform.h"
#include "helper/trace.h"
#include "helper/trace_cxx.h"
#include "sdk/bcm/debug.h"
#include "standin/base/config_store.h"
#include "standin/shell/session.h"

namespace standin {
namespace {

class LogTest : public ::testing::Test {
  protected:
    void SetUp() override {
        path_ = directory_.file_with("log", "");
        int fd = ::open(path_.c_str(), O_WRONLY | O_APPEND);
        ASSERT_TRUE(log_descriptor_set(fd));
        ::close(fd);  // the log keeps its own
    }
    void TearDown() override {
        log_descriptor_set(-1);
        KorvelSetAllTraceLevel(kSeverityWarning);
        captureTrace(true);
        captureTrace(false);
        traceToLogIs(false);
        korvelBdeMemTrace(0, nullptr);
        config_clear();
    }

    std::string logged() { return content(path_); }

    Directory directory_;
    std::string path_;
};

TEST_F(LogTest, WritesOriginAndText) {
    KorvelWriteBslLogMsg("/src/deep/store.c", 41, "load", 2, kLayerSal, kSourceConfig, 0, "bad\n");
    KorvelWriteBslLogMsg(nullptr, 7, nullptr, 1, kLayerBcm, kSourceL2, -1, nullptr);
    EXPECT_EQ(logged(), "ERROR sal.config u0 store.c:41 load(): bad\nFATAL bcm.l2: \n");
}

TEST_F(LogTest, LevelsDecideByPair) {
    KorvelSetTraceLevel(kLayerBcm, kSourceL2, kSeverityDebug);
    KorvelSetTraceLevel(kLayerBcm, kSourceVlan, kSeverityOff);
    for (int source : {int{kSourceL2}, int{kSourceVlan}, int{kSourceStg}})
        for (int severity : {int{kSeverityFatal}, int{kSeverityDebug}})
            KorvelWriteBslLogMsg("f", 1, "g", severity, kLayerBcm, source, -1, "m");
    EXPECT_EQ(logged(),
              "FATAL bcm.l2 f:1 g(): m\nDEBUG bcm.l2 f:1 g(): m\nFATAL bcm.stg f:1 g(): m\n");
}

TEST_F(LogTest, OneLevelForARowAColumnOrAll) {
    EXPECT_TRUE(log_level_set(kLayerPhy, kEvery, kSeverityInfo));
    EXPECT_TRUE(log_level_set(kEvery, kSourceMdio, kSeverityVerbose));
    EXPECT_EQ(log_level(kLayerPhy, kSourcePort), kSeverityInfo);
    EXPECT_EQ(log_level(kLayerBcm, kSourceMdio), kSeverityVerbose);
    EXPECT_EQ(log_level(kLayerBcm, kSourcePort), kSeverityWarning);
    KorvelSetAllTraceLevel(kSeverityOff);
    EXPECT_EQ(log_level(kLayerPhy, kSourceMdio), kSeverityOff);
    KorvelSetAllTraceLevel(99);
    KorvelSetTraceLevel(kLayers, 0, kSeverityDebug);
    KorvelSetTraceLevel(0, kSources, kSeverityDebug);
    KorvelSetTraceLevel(-5, 0, kSeverityDebug);
    EXPECT_EQ(log_level(kLayerPhy, kSourceMdio), kSeverityOff) << "numbers out of range do nothing";
}

TEST_F(LogTest, NumbersOutOfRangeStandAsThemselves) {
    KorvelWriteBslLogMsg("f", 1, "g", 2, 1000, -7, 5, "m");
    KorvelWriteBslLogMsg("f", 1, "g", 77, 1000, 0, 5, "m");
    EXPECT_EQ(logged(), "ERROR 1000.-7 u5 f:1 g(): m\n");
}

TEST_F(LogTest, NamesAndNumbers) {
    for (int source = 0; source < kSources; ++source) {
        EXPECT_EQ(source_of(source_name(source)), source);
        EXPECT_EQ(source_of(std::to_string(source)), source);
    }
    EXPECT_EQ(layer_of("SHELL"), kLayerShell);
    EXPECT_EQ(severity_of("warning"), kSeverityWarning);
    EXPECT_EQ(severity_name(kSeverities), nullptr);
    EXPECT_FALSE(layer_of("8"));
    EXPECT_FALSE(layer_of(""));
}

TEST_F(LogTest, CaptureCollectsBetweenOnAndOff) {
    EXPECT_EQ(getTrace().stdString(), "");
    trace("before");
    captureTrace(true);
    trace("one");
    KorvelWriteBslLogMsg("f", 1, "g", 2, kLayerBcm, kSourceL2, 0, "two");
    captureTrace(false);
    trace("after");
    for (const char *read : {"first", "again"})
        EXPECT_EQ(getTrace().stdString(), "TRACE one\nERROR bcm.l2 u0 f:1 g(): two\n") << read;
    captureTrace(true);
    EXPECT_EQ(getTrace().stdString(), "");
}

TEST_F(LogTest, CaptureForgetsTheOldestLines) {
    config_set("trace_capture_limit", "30");
    captureTrace(true);
    for (int at = 0; at < 10; ++at) trace("line " + std::to_string(at));
    EXPECT_EQ(getTrace().stdString(), "TRACE line 8\nTRACE line 9\n");
    trace(std::string(40, 'x'));
    EXPECT_EQ(getTrace().stdString(), "") << "longer than all that is kept";
    trace("short");
    EXPECT_EQ(getTrace().stdString(), "TRACE short\n");
}

// The reader of this pipe is the process that writes, which holds the interpreter lock.
TEST_F(LogTest, AFullPipeOfTheProcessItselfDropsWhatItCannotTake) {
    ::alarm(60);
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    ASSERT_EQ(::fcntl(ends[1], F_SETPIPE_SZ, 4096), 4096);
    ASSERT_TRUE(log_descriptor_set(ends[1]));
    for (const char *text : {"first", "second"})
        KorvelWriteBslLogMsg("f", 1, "g", 2, 0, 0, -1, std::string(4000, *text).c_str());
    std::fflush(stdout);
    int before = ::dup(STDOUT_FILENO);
    ::dup2(ends[1], STDOUT_FILENO);
    out(std::string(100'000, 'o'));
    ::dup2(before, STDOUT_FILENO);
    ::close(before);
    log_descriptor_set(-1);
    ::close(ends[1]);
    std::string text(200'000, '\0');
    text.resize(static_cast<std::size_t>(::read(ends[0], text.data(), text.size())));
    ::close(ends[0]);
    EXPECT_EQ(text, "ERROR app.common f:1 g(): " + std::string(4000, 'f') + '\n');
    ::alarm(0);
}

TEST_F(LogTest, TraceGoesToTheLogWhenTold) {
    trace("unseen");
    traceToLogIs(true);
    trace("seen");
    traceToLogIs(false);
    trace("unseen");
    EXPECT_EQ(logged(), "TRACE seen\n");
}

TEST_F(LogTest, BusAccessesCarryTheirTag) {
    captureTrace(true);
    bde_trace_access(0, false, 0x10, 1);
    korvelBdeMemTrace(1, "agent");
    bde_trace_access(0, true, 0x1234, 0xff);
    korvelBdeMemTrace(1, nullptr);
    bde_trace_access(2, false, 0x1234, 0xff);
    EXPECT_EQ(getTrace().stdString(),
              "TRACE agent: u0 write 0x00001234 = 0x000000ff\n"
              "TRACE bde: u2 read 0x00001234 = 0x000000ff\n");
}

TEST_F(LogTest, ApiCallsLogTheirArguments) {
    char name[] = "bcm_port_enable_set";
    _bcm_debug_api(kSourcePort, name, 3, 3, 0, 5, 1, 0);  // a good call is verbose
    EXPECT_EQ(logged(), "");
    log_level_set(kLayerBcm, kSourcePort, kSeverityVerbose);
    _bcm_debug_api(kSourcePort, name, 3, 2, 0, 5, 9, 0);
    _bcm_debug_api(kSourcePort, name, 7, 7, 1, 2, 3, -4);
    _bcm_debug_api(kSourcePort, nullptr, 0, 0, 1, 2, 3, -4);
    _bcm_debug_api(kSourcePort, nullptr, -1, 99, 1, 2, 3, -4);
    EXPECT_EQ(logged(),
              "VERBOSE bcm.port: bcm_port_enable_set(0, 5, &9) = 0\n"
              "WARNING bcm.port: bcm_port_enable_set(1, 2, 3, ...) = -4\n"
              "WARNING bcm.port: ?() = -4\n"
              "WARNING bcm.port: ?() = -4\n");
}

TEST_F(LogTest, TheDescriptorIsHandedOverAndTakenBack) {
    std::string other = directory_.file_with("other", "");
    int fd = ::open(other.c_str(), O_WRONLY);
    fileDescriptorIs(fd);
    ::close(fd);
    KorvelWriteBslLogMsg("f", 1, "g", 2, 0, 0, -1, "there");
    config_set("fault.fileDescriptorIs", "status:-1");
    fileDescriptorIs(-1);
    config_clear();
    KorvelWriteBslLogMsg("f", 1, "g", 2, 0, 0, -1, "still there");
    EXPECT_EQ(content(other),
              "ERROR app.common f:1 g(): there\nERROR app.common f:1 g(): still there\n");
    EXPECT_EQ(logged(), "");
}

TEST_F(LogTest, DescriptorsThatAreNotOpenChangeNothing) {
    EXPECT_FALSE(log_descriptor_set(987));
    KorvelWriteBslLogMsg("f", 1, "g", 2, 0, 0, -1, "still here");
    EXPECT_EQ(logged(), "ERROR app.common f:1 g(): still here\n");
}

TEST_F(LogTest, ShellCommandsAreTraced) {
    captureTrace(true);
    Shell::instance().run(3, "echo -n '' ; nonsense -n");
    EXPECT_EQ(getTrace().stdString(),
              "TRACE shell u3: echo -n '': CMD_OK\nTRACE shell u3: nonsense -n: CMD_NFND\n");
}

}  // namespace
}  // namespace standin
