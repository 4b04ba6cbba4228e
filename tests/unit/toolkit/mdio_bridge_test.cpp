// The bridge against a helper library of the test's own: what reaches it, and that every way to
// fail leaves references and totals where they were.
#include <Python.h>

#include "device/mdio_bridge.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <new>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>

#include "device/counted_result.h"
#include "failing_new.h"
#include "helper/mdio_cxx.h"
#include "python_fixture.h"
#include "toolkit/exception.h"
#include "toolkit/lock.h"
#include "toolkit/mdio.h"

using Hardware::PhyBcm::ManagedPhy;
using Hardware::TesselApi::ExternalPhyId;
using Hardware::TesselApi::PythonMdioAccessWrapper;
using Hardware::TesselApi::UnitId;
using Lumo::ActivityLockAnchor;
using MdioHamImpl::HamImpl;

namespace {

enum class Fault { none, handle, accessor, helper_std, helper_other };

// What the toolkit and the helper library were seen to do, and are told to do.
struct World {
    Fault fault = Fault::none;
    int accessors_built = 0;
    bool locked_in_constructors = true;
    bool locked_in_helper = false;
    std::string name;
    std::map<std::tuple<std::uint32_t, std::uint16_t, ManagedPhy>, HamImpl::Ptr> installed;
} world;

void enter_constructor(Fault mine) {
    world.locked_in_constructors &= ActivityLockAnchor::lock()->heldByCaller();
    if (world.fault == mine) throw std::runtime_error("constructor");
}

}  // namespace

// The helper library.
void TesselApiSetExtMdioAccess(UnitId unit, ExternalPhyId phyId, HamImpl::Ptr ham,
                               ManagedPhy managedPhy) {
    world.locked_in_helper |= ActivityLockAnchor::lock()->heldByCaller();
    if (world.fault == Fault::helper_std) throw std::runtime_error("helper");
    if (world.fault == Fault::helper_other) throw 5;
    world.name = ham->name().string().stdString();
    world.installed[{unit.value(), phyId.value(), managedPhy}] = std::move(ham);
}

// No memory for any pointer object.
PyObject *ombra::noted_pointer(void *, swig_type_info *) { return nullptr; }
PyObject *ombra::in_proxy(PyObject *bare, const swig_type_info *) { return bare; }

// Constructors that can fail. The program's own definitions go before those of the libraries.
Lumo::PyObjHandle::PyObjHandle(PyObject *object, bool) : object_(object) {
    enter_constructor(Fault::handle);
    Py_INCREF(object);
}

PythonMdioAccessWrapper::PythonMdioAccessWrapper(Lumo::Name name, Hardware::Mdio::BusId busId,
                                                 Hardware::Mdio::PortAddr portAddr,
                                                 const Lumo::Ptr<HalMdioAccel::Accel> &accel,
                                                 const Lumo::Ptr<Lumo::PyObjHandle> &handle)
    : HamImpl(std::move(name), busId, portAddr), handle_(handle) {
    EXPECT_EQ(accel.get(), nullptr);
    EXPECT_TRUE(handle->hasNotificationActive());
    enter_constructor(Fault::accessor);
    ++world.accessors_built;
}

namespace {

class MdioBridge : public ::testing::Test {
  protected:
    void SetUp() override {
        world = World();
        install(0, 0);  // makes the tracking records, which stay
        world = World();
        totals_ = Lumo::AllocTrackTypeInfo::totals();
    }

    void TearDown() override {
        world = World();
        expect_unchanged();
        Py_DECREF(object_);
    }

    void install(int unit, int phy, ManagedPhy kind = ManagedPhy::phy84328) {
        TesselApiSetExtMdioAccessWrapper(unit, phy, object_, kind);
    }

    // The text of the range failure, or what came in its place.
    std::string range_failure(int unit, int phy) {
        try {
            install(unit, phy);
        } catch (const std::exception &exception) {
            return Lumo::isRangeException(exception) ? exception.what() : "another exception";
        }
        return "none";
    }

    void expect_unchanged() {
        EXPECT_EQ(Py_REFCNT(object_), references_);
        EXPECT_EQ(Lumo::AllocTrackTypeInfo::totals(), totals_);
        EXPECT_FALSE(ActivityLockAnchor::lock()->heldByCaller());
    }

    PyObject *object_ = PyList_New(0);
    Py_ssize_t references_ = Py_REFCNT(object_);
    Lumo::AllocTotals totals_;
};

TEST_F(MdioBridge, HelperLibraryKeepsTheOnlyReference) {
    install(3, 17, ManagedPhy(-2));
    ASSERT_EQ(world.installed.size(), 1u);
    const auto &[key, accessor] = *world.installed.begin();
    EXPECT_EQ(key, (std::tuple(3u, std::uint16_t{17}, ManagedPhy(-2))));
    EXPECT_EQ(world.name, "PythonAccess-3-17");
    EXPECT_EQ(accessor->references(), 1u);
    EXPECT_TRUE(accessor->hasNotificationActive());
    EXPECT_EQ(accessor->busId().value(), 0);
    EXPECT_EQ(accessor->portAddr().value(), 0);
    EXPECT_EQ(Py_REFCNT(object_), references_ + 1);
    EXPECT_TRUE(world.locked_in_constructors);
    EXPECT_FALSE(world.locked_in_helper);
}

TEST_F(MdioBridge, RangesAreCheckedOnceTheAccessorIsBuilt) {
    constexpr const char *bad_phy = "ExternalPhyId::value < 0 or > 0x03ff not allowed";
    constexpr const char *bad_unit = "UnitId::value < 0 or > 255 not allowed";
    struct Case {
        int unit;
        int phy;
        const char *failure;
    };
    const std::array cases{
        Case{0, 0x3FF, "none"},    Case{255, 0, "none"},
        Case{0, 65536, "none"},  // its low 16 bits are 0
        Case{0, 0x400, bad_phy},   Case{0, -1, bad_phy},
        Case{256, 0, bad_unit},    Case{-1, 0, bad_unit},
        Case{256, 0x400, bad_phy},  // the PHY is the first
    };
    for (const Case &test : cases) {
        SCOPED_TRACE(testing::Message() << "unit " << test.unit << ", phy " << test.phy);
        world = World();
        EXPECT_EQ(range_failure(test.unit, test.phy), test.failure);
        EXPECT_EQ(world.accessors_built, 1);
        if (test.phy == 65536) {
            EXPECT_EQ(world.name, "PythonAccess-0-65536");
            EXPECT_EQ(std::get<1>(world.installed.begin()->first), 0);
        }
        world.installed.clear();
        expect_unchanged();
    }
}

TEST_F(MdioBridge, AnythingThatThrowsLeavesNothingBehind) {
    for (const Fault fault : {Fault::handle, Fault::accessor, Fault::helper_std}) {
        world.fault = fault;
        EXPECT_THROW(install(1, 1), std::runtime_error);
        expect_unchanged();
    }
    world.fault = Fault::helper_other;
    EXPECT_THROW(install(1, 1), int);
    expect_unchanged();
}

TEST_F(MdioBridge, EveryAllocationMayFail) {
    install(1, 1);  // so that the key is there, and only the bridge allocates
    world.installed.begin()->second = nullptr;
    int failures = 0;
    for (bool failed = true; failed && failures < 50;) {
        allocations_left = failures;
        try {
            install(1, 1);
            failed = false;
        } catch (const std::bad_alloc &) {
            ++failures;
        }
        allocations_left = -1;
        if (failed) expect_unchanged();
    }
    // The name's body, the handle and the accessor; others are the library's own.
    EXPECT_GE(failures, 3);
    EXPECT_LT(failures, 50);
}

TEST_F(MdioBridge, ACountedResultWithoutMemoryKeepsNothing) {
    install(1, 1);
    const HamImpl::Ptr accessor = world.installed.begin()->second;
    const long before = live_allocations;
    EXPECT_EQ(ombra::counted_result(accessor, nullptr), nullptr);  // none for the pointer object
    EXPECT_EQ(live_allocations, before);
    bool failed = false;
    allocations_left = 0;  // none for the holder
    try {
        ombra::counted_result(accessor, nullptr);
    } catch (const std::bad_alloc &) {
        failed = true;
    }
    allocations_left = -1;
    EXPECT_TRUE(failed);
    EXPECT_EQ(accessor->references(), 2u);
}

TEST_F(MdioBridge, NoneIsAnObjectLikeAnyOther) {
    const Py_ssize_t before = Py_REFCNT(Py_None);
    TesselApiSetExtMdioAccessWrapper(0, 0, Py_None, ManagedPhy::phy84328);
    EXPECT_EQ(Py_REFCNT(Py_None), before + 1);
    world.installed.clear();
    EXPECT_EQ(Py_REFCNT(Py_None), before);
}

}  // namespace
