#pragma once

namespace tool {

/// Holds one reference on a counted object of the library and gives it back.
template <class T>
class THeld {
public:
    THeld() = default;
    ~THeld()
    {
        if (mObject)
            mObject->Release();
    }
    THeld(const THeld&) = delete;
    THeld& operator=(const THeld&) = delete;

    /// For operations that hand over a reference.
    T** out() { return &mObject; }
    T* operator->() const { return mObject; }
    T& operator*() const { return *mObject; }
    explicit operator bool() const { return mObject != nullptr; }

private:
    T* mObject = nullptr;
};

} // namespace tool
