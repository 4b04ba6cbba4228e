// Everything that one switch chip remembers. It comes into being with its device, and starts
// anew when the chip is reset. All of it stands under the model's lock.
#pragma once
#include "standin/model/field.h"
#include "standin/model/generic_tables.h"
#include "standin/model/groups.h"
#include "standin/model/l2_chapter.h"
#include "standin/model/l3.h"
#include "standin/model/ports.h"
#include "standin/model/slots.h"
#include "standin/model/vlans.h"

namespace standin {

struct Switch {
    Ports ports;
    Vlans vlans;
    L2Chapter l2;
    Groups groups;
    Field field;
    L3 l3;
    GenericTables generic;  // of the calls that have no model of their own
    Slots layers;
};

}  // namespace standin
