// The states that the layers above the model keep of a chip or a device, which owns them: one of
// each type, made when it is first asked for and gone with its owner. The model knows none of the
// types. All of it stands under the model's lock.
//
// A state that has `visit_state(const T &, StateVisitor &)` beside it is part of what is saved: it
// is copied with its owner, and loaded. The others are not copied, and stay as they are.
#pragma once
#include <cstddef>
#include <memory>
#include <vector>

#include "standin/model/state.h"

namespace standin {

template <class T>
concept Shown = requires(const T &state, StateVisitor &to) { visit_state(state, to); };

class Slots {
  public:
    Slots() = default;
    Slots(const Slots &others) { *this = others; }
    Slots &operator=(const Slots &others) {
        if (states_.size() < others.states_.size()) states_.resize(others.states_.size());
        for (std::size_t i = 0; i < states_.size(); ++i) {
            const State *const other =
                i < others.states_.size() ? others.states_[i].get() : nullptr;
            if (other != nullptr && other->is_shown())
                states_[i] = other->copy(states_[i].get());
            else if (states_[i] != nullptr && states_[i]->is_shown())
                states_[i] = nullptr;
        }
        return *this;
    }
    Slots(Slots &&) = delete;  // a copy is what loading means
    ~Slots() = default;

    void visit(StateVisitor &to) const {
        for (const auto &state : states_)
            if (state != nullptr) state->visit(to);
    }

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
        virtual bool is_shown() const = 0;
        // In the place of `present`, which may be null; null itself where it is not shown.
        virtual std::unique_ptr<State> copy(const State *present) const = 0;
        virtual void visit(StateVisitor &to) const = 0;
    };
    template <class T>
    struct Held : State {
        bool is_shown() const override { return Shown<T>; }
        std::unique_ptr<State> copy([[maybe_unused]] const State *present) const override {
            if constexpr (Shown<T>) {
                auto made = std::make_unique<Held<T>>();
                made->value = value;
                if constexpr (requires { keep_state(made->value, value); })
                    keep_state(made->value, present == nullptr
                                                ? T{}
                                                : static_cast<const Held<T> *>(present)->value);
                return made;
            }
            return nullptr;
        }
        void visit([[maybe_unused]] StateVisitor &to) const override {
            if constexpr (Shown<T>) visit_state(value, to);
        }

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
