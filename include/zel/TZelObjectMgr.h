#pragma once

#include <zel/IZelObjectMgrBase.h>

namespace OvZel {

/// An ordered list of elements of type T.
///
/// Elements are made and owned by their list. A pointer from the list carries no reference: to keep
/// a counted element longer than the list keeps it, call its AddRef. The pointer to a plain record
/// (CZelPoint, CZelVertex, double) is good until the list grows or that record is moved or removed.
template <class T>
class TZelObjectMgr : public IZelObjectMgrBase {
public:
    /// Null for an index that is not in the list, -1 included ("getZelObject: Bad index value").
    virtual T* getZelObject(std::int32_t index) = 0;
    /// Makes a new element at the index and moves those behind it up; -1 means behind the last.
    /// Null for a bad index or when the element cannot be made, with
    /// "newZelObject: Bad index value" or "newZelObject: Can't allocate object".
    virtual T* newZelObject(std::int32_t index) = 0;

protected:
    ~TZelObjectMgr() override = default;
};

} // namespace OvZel
