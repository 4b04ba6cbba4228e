/* Trace: levels of the log, messages into it, and capture for getTrace. */
#pragma once
#include "native/base.h"

OMBRA_BEGIN_DECLS

/* Levels and messages */
void KorvelSetTraceLevel(int layer, int source, int severity);
void KorvelSetAllTraceLevel(int severity);
void KorvelWriteBslLogMsg(char const *file, unsigned int line, char const *func, int severity,
                          int layer, int source, int unit, char const *msg);

/* Capture */
void traceToLogIs(bool enable);
void captureTrace(bool enable);
void korvelBdeMemTrace(uint32 enable, char const *traceTag);

OMBRA_END_DECLS
