// How the type tables of several modules come together.
#include "runtime/module_list.h"

#include <string>
#include <vector>

#include "runtime/type_table.h"
#include "tests/unit/runtime/tiny_module.h"

namespace {

using ModuleListTest = tiny::Test;

swig_cast_link row(swig_type_info *source) { return {source, nullptr, nullptr, nullptr}; }
swig_type_info seed(const char *name) { return {name, nullptr, nullptr, nullptr, nullptr, 0}; }

std::string sources(const swig_type_info *type) {
    std::string names;
    for (const swig_cast_link *link = type->casts; link != nullptr; link = link->next)
        names += std::string(names.empty() ? "" : " ") + link->type->name;
    return names;
}

// A second module: it shares _p_Shape and _p_int with the first, and has a type of its own between
// them. Joined for the life of the process, hence static.
struct Guest {
    swig_type_info shape = seed("_p_Shape");
    swig_type_info own = {"_p_guest", "guest_t *", nullptr, nullptr, nullptr, 0};
    swig_type_info integer = seed("_p_int");
    swig_cast_link shape_rows[3] = {row(&shape), row(&own), row(nullptr)};
    swig_cast_link own_rows[3] = {row(&own), row(&integer), row(nullptr)};
    swig_cast_link integer_rows[2] = {row(&integer), row(nullptr)};
    swig_type_info *seeds[3] = {&shape, &own, &integer};
    swig_cast_link *casts[3] = {shape_rows, own_rows, integer_rows};
    swig_type_info *slots[4] = {&shape, &shape, &shape, &shape};
    swig_module_table table = {slots, 3, nullptr, nullptr, nullptr, nullptr};

    void join() { SWIG_Python_JoinModuleList(table, seeds, casts); }
};

std::vector<const swig_module_table *> ring() {
    std::vector<const swig_module_table *> tables;
    const swig_module_table *table = SWIG_Python_GetModule();
    do {
        tables.push_back(table);
        table = table->next;
    } while (table != tables.front());
    return tables;
}

TEST_F(ModuleListTest, FirstModulePublishesItself) {
    EXPECT_EQ(tiny::head_before_import, nullptr);
    EXPECT_EQ(SWIG_Python_GetModule(), &tiny::table);
    EXPECT_EQ(PyCapsule_Import("swig_runtime_data4.type_pointer_capsule", 0), &tiny::table);
    EXPECT_EQ(tiny::table.type_seeds, swig_type_seeds);
    EXPECT_EQ(tiny::table.cast_seeds, swig_cast_seeds);
    EXPECT_EQ(swig_type_slots[tiny::slot_count], nullptr);
    // The rows of one type stand in reverse order.
    EXPECT_EQ(sources(tiny::type(tiny::square)), "_p_Square");
}

TEST_F(ModuleListTest, LaterModuleSharesTypesByName) {
    static Guest guest;
    const std::size_t before = ring().size();
    guest.shape.client_data = reinterpret_cast<SwigPyClientData *>(&guest);
    guest.join();

    ASSERT_EQ(ring().size(), before + 1);
    EXPECT_EQ(ring()[0], &tiny::table);
    EXPECT_EQ(ring()[1], &guest.table);

    EXPECT_EQ(guest.slots[0], tiny::type(tiny::shape));
    EXPECT_EQ(guest.slots[1], &guest.own);
    EXPECT_EQ(guest.slots[2], tiny::type(tiny::integer));
    EXPECT_EQ(guest.slots[3], nullptr);
    EXPECT_EQ(SWIG_Python_TypeQuery("guest_t *"), &guest.own);

    // The seed's client data has moved to the shared type.
    EXPECT_EQ(tiny::type(tiny::shape)->client_data, guest.shape.client_data);
    tiny::type(tiny::shape)->client_data = nullptr;

    // A shared type keeps its casts and gains the new source alone; an own type gets all its rows,
    // turned to the shared descriptors.
    EXPECT_EQ(tiny::type(tiny::shape)->casts, &guest.shape_rows[1]);
    EXPECT_NE(SWIG_TypeCheck("_p_Square", tiny::type(tiny::shape)), nullptr);
    EXPECT_EQ(guest.shape_rows[0].next, nullptr);
    EXPECT_EQ(sources(&guest.own), "_p_int _p_guest");
    EXPECT_EQ(guest.own_rows[1].type, tiny::type(tiny::integer));
    EXPECT_EQ(guest.own_rows[0].prev, &guest.own_rows[1]);

    // Joining again changes nothing.
    const std::string shape_before = sources(tiny::type(tiny::shape));
    guest.slots[0] = nullptr;
    guest.join();
    EXPECT_EQ(ring().size(), before + 1);
    EXPECT_EQ(sources(tiny::type(tiny::shape)), shape_before);
    EXPECT_EQ(guest.slots[0], nullptr);
    guest.slots[0] = tiny::type(tiny::shape);
}

TEST_F(ModuleListTest, RepeatRunOutsideTheListOnlyLinks) {
    static Guest guest;
    static swig_module_table elsewhere = {guest.slots, 0, &elsewhere, nullptr, nullptr, nullptr};
    guest.table.next = &elsewhere;  // as after a join in a process whose list was lost
    guest.join();
    EXPECT_EQ(ring()[1], &guest.table);
    EXPECT_EQ(guest.slots[1], &guest.shape);
    EXPECT_EQ(guest.own.casts, nullptr);
    // Leaves the list again: its slots were never filled.
    tiny::table.next = guest.table.next;
}

}  // namespace
