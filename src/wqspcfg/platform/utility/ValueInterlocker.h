#pragma once

#include <atomic>

// Interlocked operations on a counter that the caller owns and that outlives this object. Each returns the resulting
// value.
class CValueInterlocker
{
  public:
    explicit CValueInterlocker(long* value) noexcept : m_value(*value) {}

    long Increment() noexcept { return ++m_value; }
    long Decrement() noexcept { return --m_value; }
    long Get() const noexcept { return m_value.load(); }

  private:
    std::atomic_ref<long> m_value;
};
