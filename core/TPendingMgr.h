#pragma once

#include "core/TObjectMgrBase.h"

namespace OvZel {

/// The list of an element class that this version doesn't have: always empty.
template <class I>
class TPendingMgr : public TObjectMgrBase<I> {
public:
    TPendingMgr(IZelObjectLink* owner, const CZelUUID& elementId)
        : TObjectMgrBase<I>(owner), mElementId(&elementId)
    {
    }

    const CZelUUID* getObjectIID() const override { return mElementId; }
    std::int32_t getNbObjects() const override { return 0; }
    void removeObject(std::int32_t) override { this->warning("removeObject: Bad index value"); }
    void moveObject(std::int32_t from, std::int32_t to) override
    {
        if (from != to)
            this->warning("moveObject: Bad index value");
    }
    void removeAllObjects() override {}
    bool reserve(std::int32_t count) override { return count >= 0; }
    I* getZelObject(std::int32_t) override
    {
        this->warning("getZelObject: Bad index value");
        return nullptr;
    }
    I* newZelObject(std::int32_t index) override
    {
        const bool good = index == -1 || index == 0;
        this->warning(good ? "newZelObject: Can't allocate object"
                           : "newZelObject: Bad index value");
        return nullptr;
    }

private:
    const CZelUUID* mElementId;
};

} // namespace OvZel
