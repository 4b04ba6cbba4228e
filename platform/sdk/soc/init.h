/* Chip start: attaching, resetting, initialising and releasing a chip. */
#pragma once
#include "native/base.h"

OMBRA_BEGIN_DECLS

int sysconf_attach(int pci_device_n);
int soc_reset_init(int unit);
int soc_init(int unit);
int soc_misc_init(int unit);
int soc_deinit(int unit);

OMBRA_END_DECLS
