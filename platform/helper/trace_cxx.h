// Captured trace: the text that was collected since captureTrace(true).
#pragma once
#include "toolkit/string.h"

Lumo::String getTrace();
