// Toolkit: objects that count their references, and the pointer that counts.
//
// A counted object:
//
//     +0   virtual table: slot 0 onZeroReferences, slot 1 hasNotificationActiveIs
//     +8   count word, 32 bits:
//            bit 31       notification active
//            bit 29       the object is being disposed of
//            0x5FFFFFFF   the count; 1 when the constructor ends
//
// Users of an object change its count by themselves, in line. Only the disposal is a call.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace Lumo {

// The virtual operations of a counted object. Their order is part of the binary interface.
class VFPtrInterface {
  public:
    // True: counts change atomically. False: plainly, which is quicker and only right in a process
    // with one thread. To be set before the first counted object is made.
    static bool threadSafePointers_;

    // Slot 0. Called once, when the last reference is gone.
    virtual void onZeroReferences() = 0;

    // Slot 1. True tells a new object that its construction is over and that it may be notified.
    virtual void hasNotificationActiveIs(bool active) = 0;

  protected:
    virtual ~VFPtrInterface();
};

class PtrInterface : public VFPtrInterface {
  public:
    static constexpr std::uint32_t notificationActiveFlag = 0x80000000;
    static constexpr std::uint32_t disposingFlag = 0x20000000;
    static constexpr std::uint32_t countMask = 0x5FFFFFFF;

    PtrInterface(const PtrInterface &) = delete;
    PtrInterface &operator=(const PtrInterface &) = delete;

    // Memory for a new object of `size` bytes; plain delete releases it. Throws std::bad_alloc.
    static void *lumoMemAlloc(std::size_t size);

    void referencesInc() const {
        if (threadSafePointers_) {
            // Whoever adds a reference already has one, so nothing has to be ordered.
            std::atomic_ref(countWord_).fetch_add(1, std::memory_order_relaxed);
        } else {
            ++countWord_;
        }
    }

    // Drops a reference; with the last one the object is gone when this returns.
    void referencesDec() const {
        std::uint32_t const left =
            threadSafePointers_
                ? std::atomic_ref(countWord_).fetch_sub(1, std::memory_order_acq_rel) - 1
                : --countWord_;
        if ((left & countMask) == 0) handleZeroRef();
    }

    std::uint32_t references() const {
        return std::atomic_ref(countWord_).load(std::memory_order_relaxed) & countMask;
    }

    bool hasNotificationActive() const;

    // Disposes of the object. References that come and go during the disposal are harmless.
    void handleZeroRef() const;

    void onZeroReferences() override;  // deletes the object
    void hasNotificationActiveIs(bool active) override;

  protected:
    PtrInterface();
    ~PtrInterface() override;

  private:
    mutable std::uint32_t countWord_ = 1;
};

// One reference to a T, or null. T derives from PtrInterface.
template <class T>
class Ptr {
  public:
    constexpr Ptr() noexcept = default;
    constexpr Ptr(std::nullptr_t) noexcept {}

    Ptr(const Ptr &other) noexcept : Ptr(other.object_) {}
    Ptr(Ptr &&other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

    template <class Derived>
        requires std::is_convertible_v<Derived *, T *>
    Ptr(const Ptr<Derived> &other) noexcept : Ptr(other.get()) {}

    // Adds a reference to `object`, which may be null.
    explicit Ptr(T *object) noexcept : object_(object) {
        if (object_) object_->referencesInc();
    }

    ~Ptr() {
        if (object_) object_->referencesDec();
    }

    Ptr &operator=(Ptr other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    // Takes over a reference that the caller holds, that of a construction for one.
    static Ptr adopt(T *object) noexcept {
        Ptr pointer;
        pointer.object_ = object;
        return pointer;
    }

    T *get() const noexcept { return object_; }
    T *operator->() const noexcept { return object_; }
    T &operator*() const noexcept { return *object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }

  private:
    T *object_ = nullptr;
};

// One word, and not trivial: a Ptr is passed and returned by hidden address.
static_assert(sizeof(Ptr<PtrInterface>) == sizeof(void *));
static_assert(!std::is_trivially_copyable_v<Ptr<PtrInterface>>);

}  // namespace Lumo
