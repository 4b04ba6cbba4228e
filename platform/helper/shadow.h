/* Shadow: the software copy of registers and tables, its life, its policy and its dumps. */
#pragma once
#include "native/base.h"
#include "native/values.h"

OMBRA_BEGIN_DECLS

/* Life */
void configureHwShadow(ibde_t *);
void configureHwPciConfigShadow(void);
void setupShadowForHwInit(uint32 unit, bool isDiags);
void teardownShadowForHwInit(uint32 unit);
bool initShadowDestroyed(uint32 unit);
void reduceLifShadowSize(uint unit);
int getRegisterBlockFromShadow(int unit, int reg, int blockId, int offset, void *dataPtr,
                               void *sizePtr);

/* Access policy */
bool dynamicShadowEnable(int unit, int mem, int arrayIndex, int baseAddr);
void dynamicShadowEnableIs(int unit, int mem, int arrayIndex, int baseAddr, bool enable);
void allowAllTableAccess(int unit, bool allow);
void simAllowAllTableAccess(bool allow);
bool simTableAccessOk(void);
bool forceReadFromHardware(void);
void forceReadFromHardwareIs(bool);
void setCopyEngineConstraintsFilePath(char const *filePath);

/* Synchronising and dumping */
uint syncRegisters(uint unit, bool dumpRegistersDuringSync, bool syncWithHardware);
uint syncSpecificRegister(uint unit, U32 reg);
int dumpRegSyncData(int unit, char const *fname);
void printAllRegisters(uint unit);
int TesselApiPrintDeviceMemInfoToFile(int unit, char const *fname);
int TesselApiPrintDeviceMemParityEccInfoToFile(int unit, char const *fname);

OMBRA_END_DECLS
