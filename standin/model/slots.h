// The states that the layers above the model keep of a chip or a device, which owns them: one of
// each type, made when it is first asked for and gone with its owner. The model knows none of the
// types. All of it stands under the model's lock.
#pragma once
#include <cstddef>
#include <memory>
#include <vector>

namespace standin {

class Slots {
  public:
    // The state of type T, which starts as T{}.
    template <class T>
    T &of() {
        if (states_.size() <= kIndex<T>) states_.resize(kIndex<T> + 1);
        std::unique_ptr<State> &state = states_[kIndex<T>];
        if (state == nullptr) state = std::make_unique<Held<T>>();
        return static_cast<Held<T> &>(*state).value;
    }

    // The next of() starts anew.
    template <class T>
    void forget() {
        if (kIndex<T> < states_.size()) states_[kIndex<T>] = nullptr;
    }

  private:
    struct State {
        virtual ~State() = default;
    };
    template <class T>
    struct Held : State {
        T value{};
    };

    static std::size_t next_index() noexcept {
        static std::size_t used = 0;
        return used++;
    }

    // Handed out while the library is loaded, by one thread.
    template <class T>
    static inline const std::size_t kIndex = next_index();

    std::vector<std::unique_ptr<State>> states_;
};

}  // namespace standin
