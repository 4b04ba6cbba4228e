// Trace and log: the C functions over log.h, and getTrace.
#include "helper/platform.h"
#include "helper/trace.h"
#include "helper/trace_cxx.h"
#include "sdk/bcm/debug.h"
#include "sdk/constants.h"
#include "standin/base/faults.h"
#include "standin/base/log.h"
#include "standin/base/scan.h"

using namespace standin;
using standin::view_of;

void KorvelSetTraceLevel(int layer, int source, int severity) {
    log_level_set(layer, source, severity);
}

void KorvelSetAllTraceLevel(int severity) { log_level_set(kEvery, kEvery, severity); }

void KorvelWriteBslLogMsg(char const *file, unsigned int line, char const *func, int severity,
                          int layer, int source, int unit, char const *msg) {
    log_message(severity, layer, source, unit, view_of(msg), {view_of(file), line, view_of(func)});
}

void traceToLogIs(bool enable) {
    if (fault_check(__func__) == BCM_E_NONE) trace_to_log_set(enable);
}

void captureTrace(bool enable) {
    if (fault_check(__func__) == BCM_E_NONE) trace_capture_set(enable);
}

Lumo::String getTrace() { return Lumo::String(trace_text()); }

void korvelBdeMemTrace(uint32 enable, char const *traceTag) {
    if (fault_check(__func__) != BCM_E_NONE) return;
    bde_trace_set(enable != 0, view_of(traceTag));
}

void _bcm_debug_api(int log_src, char *api, int nargs, int ninargs, int arg1, int arg2, int arg3,
                    int rv) {
    const int values[] = {arg1, arg2, arg3};
    std::string call(api != nullptr ? api : "?");
    call += '(';
    for (int at = 0; at < nargs; ++at) {
        if (at > 0) call += ", ";
        if (at == 3) {  // more values than the call carries
            call += "...";
            break;
        }
        call += at < ninargs ? std::to_string(values[at]) : "&" + std::to_string(values[at]);
    }
    call += ") = " + std::to_string(rv);
    int severity = rv < 0 ? kSeverityWarning : kSeverityVerbose;
    log_message(severity, kLayerBcm, log_src, kNoUnit, call);
}

void fileDescriptorIs(int fd) {
    if (fault_check(__func__) == BCM_E_NONE) log_descriptor_set(fd);
}
