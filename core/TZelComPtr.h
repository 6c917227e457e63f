#pragma once

#include <stdexcept>
#include <utility>

namespace OvZel {

/// Keeps a counted object through its AddRef and Release.
template <class T>
class TZelComPtr {
public:
    TZelComPtr() = default;
    explicit TZelComPtr(T* object) : mObject(object)
    {
        if (mObject != nullptr)
            mObject->AddRef();
    }
    TZelComPtr(const TZelComPtr& other) : TZelComPtr(other.mObject) {}
    TZelComPtr(TZelComPtr&& other) noexcept : mObject(std::exchange(other.mObject, nullptr)) {}
    TZelComPtr& operator=(TZelComPtr other) noexcept
    {
        std::swap(mObject, other.mObject);
        return *this;
    }
    ~TZelComPtr() { reset(); }

    /// The pointer is clear before the object learns of it.
    void reset()
    {
        if (T* object = std::exchange(mObject, nullptr))
            object->Release();
    }

    T* get() const { return mObject; }
    explicit operator bool() const { return mObject != nullptr; }

    T* operator->() const
    {
        if (mObject == nullptr)
            throw std::runtime_error("TZelComPtr::operator->() - Dereferencing NULL");
        return mObject;
    }
    T& operator*() const
    {
        if (mObject == nullptr)
            throw std::runtime_error("TZelComPtr::operator*() - Dereferencing NULL");
        return *mObject;
    }

private:
    T* mObject = nullptr;
};

} // namespace OvZel
