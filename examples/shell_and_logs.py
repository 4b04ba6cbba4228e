"""The diagnostic shell, its output as text, and traces and logs."""

import os
import tempfile

import OmbraSdkV2Helper as sdk
from OmbraSdkV2Helper import check

unit = check(sdk.addOmbraDevice(0, 1, 0, 0))
check(sdk.soc_init(unit))
check(sdk.soc_misc_init(unit))
check(sdk.bcm_init(unit))
sdk.diag_init()

# sdc() gives the output of a command, sh_process_command() its result.
print sdk.sdc(unit, 'vlan create 10 ports=xe1-xe4 untagged=xe2; vlan show 10')
result = sdk.sh_process_command(unit, 'no-such-command')
print 'result:', {sdk.CMD_OK: 'CMD_OK', sdk.CMD_NFND: 'CMD_NFND'}[result]

# The shell's settings are variables.
sdk.cvar.sh_set_report_status = 0

# The configuration store, walked with two texts that the SDK points at.
check(sdk.sal_config_set('port_init_speed', '10000'))
name, value = sdk.box('char *'), sdk.box('char *')
while sdk.sal_config_get_next(name, value) == sdk.BCM_E_NONE:
    print 'setting %s = %s' % (name.value, value.value)

# The trace is collected between these calls.
sdk.captureTrace(True)
sdk.sh_process_command(unit, 'echo traced')
sdk.captureTrace(False)
print 'trace:'
print sdk.getTrace()

# The log goes to a descriptor of ours. Each layer and source has a level.
INFO, DIAG_LAYER, SHELL_SOURCE = 4, 5, 22
log = tempfile.TemporaryFile()
sdk.fileDescriptorIs(log.fileno())
sdk.KorvelSetTraceLevel(DIAG_LAYER, SHELL_SOURCE, INFO)
sdk.KorvelWriteBslLogMsg(__file__, 1, 'main', INFO, DIAG_LAYER, SHELL_SOURCE,
                         unit, 'a message of ours\n')
sdk.fileDescriptorIs(-1)
log.seek(0, os.SEEK_SET)
print 'log:'
print log.read()
