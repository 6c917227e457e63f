#include "geometry/CPolygonBase.h"

namespace OvZel {

CPolygonBase::~CPolygonBase()
{
    resetBlock();
    if (mBlock != nullptr)
        mBlock->releaseWeakRef();
}

IZelSharedPtrBase* CPolygonBase::getSelfWeakPtr() const
{
    if (mBlock == nullptr) {
        mBlock = new TSharedPtr<CPolygonBase>(const_cast<CPolygonBase*>(this));
        mBlock->addWeakRef();
        if (mIsHeld)
            mBlock->addRef();
    }
    return mBlock;
}

void CPolygonBase::hold()
{
    mIsHeld = true;
    if (mBlock != nullptr)
        mBlock->addRef();
}

void CPolygonBase::letGo()
{
    mIsHeld = false;
    if (mBlock != nullptr)
        mBlock->release();
    else
        delete this;
}

void CPolygonBase::resetBlock()
{
    if (mBlock != nullptr)
        mBlock->resetPtr();
}

} // namespace OvZel
