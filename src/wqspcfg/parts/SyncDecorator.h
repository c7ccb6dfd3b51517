#pragma once

// A container with the lock that guards it. Users lock `m_lock` with an infinite wait around every traversal or change.
template <class Container, class Lock>
class CSyncDecorator : public Container
{
  public:
    virtual ~CSyncDecorator() = default;

    Lock m_lock;
};
