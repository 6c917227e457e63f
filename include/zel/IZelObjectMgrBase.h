#pragma once

#include <zel/IZelBasic.h>

namespace OvZel {

/// An ordered list of the model, without the type of its elements.
///
/// A bad index warns on the feedback ("removeObject: Bad index value" and the like), changes
/// nothing and gives the failure value. One thread at a time.
class IZelObjectMgrBase : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"C243B7B175044DCF9BD2C3EB74AE0F8D"};

    /// The identifier of the element type.
    virtual const CZelUUID* getObjectIID() const = 0;
    /// How many elements there are.
    virtual std::int32_t getNbObjects() const = 0;
    /// -1 means the last element.
    virtual void removeObject(std::int32_t index) = 0;
    /// Takes the element out of from and inserts it at to, counted after the removal.
    virtual void moveObject(std::int32_t from, std::int32_t to) = 0;
    /// Empties the list. Elements with a reference of a client live on without it.
    virtual void removeAllObjects() = 0;
    /// Makes room for that many elements; false for a negative number or when there is no memory.
    /// Lists of plain records take the number as their new capacity, but never less than the
    /// records that they hold. When memory runs out they lose their records and warn
    /// "No memory availiable" (sic), here and when a new record is made.
    virtual bool reserve(std::int32_t count) = 0;

protected:
    ~IZelObjectMgrBase() override = default;
};

} // namespace OvZel
