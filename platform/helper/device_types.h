/* Devices: how ports are wired to the chip. */
#pragma once
#include "native/base.h"
#include "sdk/enums.h"

OMBRA_BEGIN_DECLS

/* How a port is wired: lanes, polarities, PHY. */
typedef struct tridentPortMap_s {
    int speed;
    int warpCore;
    int phyLane;
    int txLane;
    int rxLane;
    bool txPolarity;
    bool rxPolarity;
    tesselPhyType_t phyType;
    unsigned int mdioAddr;
    bool phyTxPolarity;
    bool phyRxPolarity;
    int xcvrLane;
} tridentPortMap_t;

OMBRA_END_DECLS
