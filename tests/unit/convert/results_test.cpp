// Results that are more than one call of the interpreter.

#include "convert/results.h"

#include <pthread.h>
#include <sys/mman.h>
#include <unistd.h>

#include "convert/frame_body.h"
#include "runtime/pointer_object.h"
#include "tests/unit/runtime/tiny_module.h"

namespace {

using ombra::PyRef;
using ResultsTest = tiny::Test;

// A text of `length` characters in little memory: one block of 'x', mapped over and over.
class LongText {
  public:
    explicit LongText(std::size_t length) : size_((length / kBlock + 1) * kBlock) {
        const int file = memfd_create("text", 0);
        const std::string block(kBlock, 'x');
        ready_ = file >= 0 && write(file, block.data(), kBlock) == static_cast<ssize_t>(kBlock);
        void *memory = mmap(nullptr, size_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        ready_ = ready_ && memory != MAP_FAILED;
        text_ = static_cast<char *>(memory);
        // Private: the terminator is written into a copy of one page.
        for (std::size_t at = 0; ready_ && at < size_; at += kBlock) {
            ready_ = mmap(text_ + at, kBlock, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_FIXED, file,
                          0) != MAP_FAILED;
        }
        if (ready_) text_[length] = '\0';
        close(file);
    }
    ~LongText() { munmap(text_, size_); }
    LongText(const LongText &) = delete;
    LongText &operator=(const LongText &) = delete;

    // Null if the machine could not map it.
    const char *text() const { return ready_ ? text_ : nullptr; }

  private:
    static constexpr std::size_t kBlock = std::size_t{1} << 21U;
    std::size_t size_;
    bool ready_ = false;
    char *text_ = nullptr;
};

// From 2^31 bytes on a text is no `str` but a pointer object to the native characters.
TEST_F(ResultsTest, TextOfTwoGigabytes) {
    const LongText text(std::size_t{1} << 31U);
    if (text.text() == nullptr) GTEST_SKIP() << "no address space for a text of two gigabytes";
    const PyRef result(ombra::text_result(text.text()));
    ASSERT_NE(result, nullptr);
    ASSERT_TRUE(SwigPyObject_Test(result.get()));
    const auto *object = ombra::as_pointer_object(result.get());
    EXPECT_EQ(object->ptr, text.text());
    EXPECT_EQ(object->type, tiny::type(tiny::character));
    EXPECT_EQ(object->own, 0);
}

TEST_F(ResultsTest, AnAllocationOfNoKnownType) {
    void *memory = ::operator new(4);
    const PyRef result(ombra::own_pointer(memory, nullptr));
    auto *object = ombra::as_pointer_object(result.get());
    EXPECT_EQ(object->ptr, memory);
    EXPECT_EQ(object->type, nullptr);
    object->own = 0;
    ::operator delete(memory);
}

#ifndef __SANITIZE_ADDRESS__  // the compiler's own handler of a forced unwind binds a null reference
int end_thread() { pthread_exit(nullptr); }

// A native function may end its thread: the frame lets it unwind, and does not return.
TEST_F(ResultsTest, AThreadThatEndsGoesOnUnwinding) {
    static const ombra::FunctionRow row{reinterpret_cast<ombra::NativeFunction>(&end_thread),
                                        {"row", ""}};
    static const PyRef none(PyTuple_New(0));
    static bool returned = false;
    pthread_t thread{};
    const auto run = [](void *) -> void * {
        ombra::Call<ombra::Signed32()>::run(row, none.get());
        returned = true;
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, nullptr, run, nullptr), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    EXPECT_FALSE(returned);
}
#endif

}  // namespace
