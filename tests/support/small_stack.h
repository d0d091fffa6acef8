// Runs code on a stack so small that a recursion as deep as its data can't hide.
#ifndef KRM_TESTS_SUPPORT_SMALL_STACK_H_
#define KRM_TESTS_SUPPORT_SMALL_STACK_H_

#if defined(_WIN32)
#include <process.h>
#include <windows.h>
#else
#include <pthread.h>
#endif

#include <cstddef>

#include "gtest/gtest.h"

namespace krm::test {

/// A quarter of what a thread gets on Windows.
inline constexpr std::size_t kSmallStack = 256 * 1024;

// RunOnSmallStack calls `function` in a thread with a stack of kSmallStack bytes and waits for it.

#if defined(_WIN32)

template <class Function>
unsigned __stdcall CallOnSmallStack(void* function) {
    (*static_cast<Function*>(function))();
    return 0;
}

template <class Function>
void RunOnSmallStack(Function function) {
    const auto thread =
        reinterpret_cast<HANDLE>(_beginthreadex(nullptr, static_cast<unsigned>(kSmallStack), CallOnSmallStack<Function>,
                                                &function, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr));
    ASSERT_NE(thread, nullptr);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
}

#else

template <class Function>
void* CallOnSmallStack(void* function) {
    (*static_cast<Function*>(function))();
    return nullptr;
}

template <class Function>
void RunOnSmallStack(Function function) {
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, kSmallStack), 0);
    pthread_t thread;
    ASSERT_EQ(pthread_create(&thread, &attributes, CallOnSmallStack<Function>, &function), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

#endif

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_SMALL_STACK_H_
