#include "geometry/CPolygonBase.h"

#include <memory>
#include <utility>

namespace OvZel {

CPolygonBase::~CPolygonBase()
{
    if (!mHasMore) {
        std::destroy_at(&mVertices);
        return;
    }
    TSharedPtr<CPolygonBase>* const block = mMore->block;
    delete mMore;
    if (block == nullptr)
        return;
    // Once more, since it may have been made by client code that saw the loops go.
    block->resetPtr();
    block->releaseWeakRef();
}

IZelSharedPtrBase* CPolygonBase::getSelfWeakPtr() const
{
    TSharedPtr<CPolygonBase>*& block = more().block;
    if (block == nullptr) {
        block = new TSharedPtr<CPolygonBase>(const_cast<CPolygonBase*>(this));
        block->addWeakRef();
        if (mIsHeld)
            block->addRef();
    }
    return block;
}

void CPolygonBase::hold()
{
    mIsHeld = true;
    if (block() != nullptr)
        block()->addRef();
}

void CPolygonBase::letGo()
{
    mIsHeld = false;
    if (block() != nullptr)
        block()->release();
    else
        delete this;
}

void CPolygonBase::end()
{
    if (block() != nullptr)
        block()->resetPtr();
    if (mHasMore)
        mMore->holes.reset();
    verticesSlot().reset();
}

CPolygonBase::CMore& CPolygonBase::more() const
{
    if (!mHasMore) {
        auto* const made = new CMore{std::move(mVertices), {}};
        std::destroy_at(&mVertices);
        mMore = made;
        mHasMore = true;
    }
    return *mMore;
}

} // namespace OvZel
