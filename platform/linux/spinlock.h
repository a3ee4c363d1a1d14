// A minimal spin lock: the stand-in's shared state (handles, heap) must be
// safe against concurrent calls, as the platform's kernel is.
#pragma once

namespace orv::k32 {

class SpinLock {
public:
    void lock() {
        while (__atomic_exchange_n(&held_, 1, __ATOMIC_ACQUIRE))
            while (__atomic_load_n(&held_, __ATOMIC_RELAXED)) __builtin_ia32_pause();
    }
    void unlock() { __atomic_store_n(&held_, 0, __ATOMIC_RELEASE); }

private:
    int held_ = 0;
};

class Guard {
public:
    explicit Guard(SpinLock &l) : l_(l) { l_.lock(); }
    ~Guard() { l_.unlock(); }
    Guard(const Guard &) = delete;
    Guard &operator=(const Guard &) = delete;

private:
    SpinLock &l_;
};

} // namespace orv::k32
