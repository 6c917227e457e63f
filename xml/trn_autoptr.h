#pragma once

#include <utility>

namespace OvZel {

/// Keeps a trn_reference object.
template <class T>
class trn_autoptr {
public:
    trn_autoptr() = default;
    explicit trn_autoptr(T* object) : mObject(object)
    {
        if (mObject != nullptr)
            mObject->addReference();
    }
    trn_autoptr(const trn_autoptr& other) : trn_autoptr(other.mObject) {}
    trn_autoptr(trn_autoptr&& other) noexcept : mObject(std::exchange(other.mObject, nullptr)) {}
    trn_autoptr& operator=(trn_autoptr other) noexcept
    {
        std::swap(mObject, other.mObject);
        return *this;
    }
    ~trn_autoptr()
    {
        if (mObject != nullptr)
            mObject->release();
    }

    T* get() const { return mObject; }
    T* operator->() const { return mObject; }
    explicit operator bool() const { return mObject != nullptr; }

private:
    T* mObject = nullptr;
};

} // namespace OvZel
