#pragma once

namespace OvZel {

class ITCENode;
class IZelSharedPtrBase;

/// The link from a node to its parent, which does not keep it and reads null once it is gone.
class CParentLink {
public:
    explicit CParentLink(ITCENode* parent) { set(parent); }
    ~CParentLink() { set(nullptr); }
    CParentLink(const CParentLink&) = delete;
    CParentLink& operator=(const CParentLink&) = delete;

    ITCENode* get() const;
    void set(ITCENode* parent);

private:
    ITCENode* mParent = nullptr;
    IZelSharedPtrBase* mBlock = nullptr;
};

} // namespace OvZel
