// MDIO access to external PHYs: the interface, and the accessor that asks a Python object.
#pragma once

#include <cstdint>

#include "toolkit/alloc_track.h"
#include "toolkit/ptr.h"
#include "toolkit/py_handle.h"
#include "toolkit/string.h"
#include "toolkit/values.h"

namespace HalMdioAccel {

// A hardware engine that speeds up the accesses of a bus.
class Accel : public Lumo::PtrInterface {
  protected:
    ~Accel() override;
};

}  // namespace HalMdioAccel

namespace MdioHamImpl {

// Reads and writes the registers of one PHY, on whichever thread.
class HamImpl : public Lumo::PtrInterface {
  public:
    typedef Lumo::Ptr<HamImpl> Ptr;

    // Statuses in the numbering of the chip SDK.
    static constexpr int statusOk = 0;
    static constexpr int statusFail = -11;

    // Reads register `regAddr` of device `devAddr` into `value`, which a failure leaves as it was.
    // Returns statusOk or a negative status.
    virtual int read(unsigned devAddr, unsigned regAddr, std::uint16_t *value) = 0;
    virtual int write(unsigned devAddr, unsigned regAddr, std::uint16_t value) = 0;

    const Lumo::Name &name() const noexcept { return name_; }
    Hardware::Mdio::BusId busId() const noexcept { return busId_; }
    Hardware::Mdio::PortAddr portAddr() const noexcept { return portAddr_; }

  protected:
    HamImpl(Lumo::Name name, Hardware::Mdio::BusId busId, Hardware::Mdio::PortAddr portAddr);
    ~HamImpl() override;

  private:
    Lumo::Name name_;
    Hardware::Mdio::BusId busId_;
    Hardware::Mdio::PortAddr portAddr_;
};

}  // namespace MdioHamImpl

namespace Hardware::TesselApi {

// Serves MDIO from a Python object, which must offer
//
//     read(busId, portAddr, devAddr, regAddr)          returns the value, an integer 0 to 0xFFFF
//     write(busId, portAddr, devAddr, regAddr, value)  its result is not looked at
//
// with integers throughout; what Python takes for an index is an integer. The object is called
// under the interpreter lock on the thread that asks, whichever that is. Python may switch threads
// inside a method, so an object whose state spans several steps guards it by itself. The object may
// remove or replace the accessor that is calling it.
//
// An exception, a missing method or a value that is no such integer is reported as Python reports
// what it can't raise ("Exception ... ignored" on sys.stderr), and the caller gets statusFail. So
// it does, without a report, once the interpreter has ended.
class PythonMdioAccessWrapper : public MdioHamImpl::HamImpl {
  public:
    static Lumo::AllocTrackTypeInfo *lumoAllocTrackTypeInfo_;

    // Keeps a reference to `handle`. No engine can speed a Python object up: `accel` is ignored.
    PythonMdioAccessWrapper(Lumo::Name name, Mdio::BusId busId, Mdio::PortAddr portAddr,
                            const Lumo::Ptr<HalMdioAccel::Accel> &accel,
                            const Lumo::Ptr<Lumo::PyObjHandle> &handle);
    ~PythonMdioAccessWrapper() override;

    int read(unsigned devAddr, unsigned regAddr, std::uint16_t *value) override;
    int write(unsigned devAddr, unsigned regAddr, std::uint16_t value) override;

  private:
    Lumo::Ptr<Lumo::PyObjHandle> handle_;
};

}  // namespace Hardware::TesselApi
