// Shell output: one command, and what it prints.
#pragma once
#include "toolkit/string.h"

Lumo::String sdc(int unit, char *command);
