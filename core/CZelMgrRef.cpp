#include "core/CZelMgrRef.h"

#include "core/OvThrow.h"
#include "core/query.h"
#include "core/warnJoined.h"

#include <zel/IZelFeedback.h>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace OvZel {

namespace {

constexpr double kIdentity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

/// Keeps a document alive while something is done with it.
class CHold {
public:
    explicit CHold(IZelSharedPtrBase* block) : mBlock(block) { mBlock->addRef(); }
    ~CHold() { mBlock->release(); }
    CHold(const CHold&) = delete;
    CHold& operator=(const CHold&) = delete;

    bool isAlive() const { return CZelSharedPtrObject::from(mBlock)->isAlive(); }

private:
    IZelSharedPtrBase* mBlock;
};

} // namespace

CZelMgrRef::CZelMgrRef(IZelMgr* document, IZelSharedPtrBase* documentBlock, IZelFeedback* feedback)
    : mSelf(this), mDocument(document), mDocumentBlock(documentBlock), mFeedback(feedback)
{
    if (mDocumentBlock != nullptr)
        mDocumentBlock->addWeakRef();
    std::copy_n(kIdentity, 16, mMatrix);
}

CZelMgrRef::~CZelMgrRef()
{
    mSelf.get()->resetPtr();
    if (mDocumentBlock == nullptr)
        return;
    // Only a fault in the counts leads here, so it is told where a developer sees it.
    if (const CHold hold(mDocumentBlock); hold.isAlive())
        std::fputs("CZelMgrRef::~CZelMgrRef - Called while always refered by it's ZelMgr ???\n",
                   stdout);
    mDocumentBlock->releaseWeakRef();
}

std::int32_t CZelMgrRef::QueryInterface(const CZelUUID& iid, void** out)
{
    return query(static_cast<IZelMgrRef*>(this), IZelObjectLinkRef::sIID, iid, out);
}

IZelMgr* CZelMgrRef::getMgr()
{
    if (mDocumentBlock == nullptr)
        throw std::runtime_error("TZelWeakPtr::getSharedPtr - Shared pointer is NULL");
    return CZelSharedPtrObject::from(mDocumentBlock)->isAlive() ? mDocument : nullptr;
}

void CZelMgrRef::setLanguage(const char* language)
{
    const bool valid =
        language != nullptr && language[0] != '\0' && language[1] != '\0' && language[2] == '\0';
    if (!valid)
        return warning("IZelMgr::setLanguage - Invalid language");
    std::copy_n(language, 3, mLanguage);
}

void CZelMgrRef::setMatrix(const double* matrix)
{
    if (matrix == nullptr)
        return;
    std::copy_n(matrix, 16, mMatrix);
    // One element that agrees with the identity is enough. Existing clients rely on it: an identity
    // switches the transform on, and a matrix that shares nothing with it switches it off.
    mTransformActive = false;
    for (int i = 0; i < 16 && !mTransformActive; ++i)
        mTransformActive = mMatrix[i] == kIdentity[i];
}

void CZelMgrRef::transformNormal(double* normal) const
{
    transformVector(normal);
}

void CZelMgrRef::transformVector(double* vector) const
{
    if (!mTransformActive)
        return;
    const double x = vector[0], y = vector[1], z = vector[2];
    for (int column = 0; column < 3; ++column)
        vector[column] = x * mMatrix[column] + y * mMatrix[4 + column] + z * mMatrix[8 + column];
}

void CZelMgrRef::transformPoint(double* point) const
{
    if (!mTransformActive)
        return;
    transformVector(point);
    for (int column = 0; column < 3; ++column)
        point[column] += mMatrix[12 + column];
}

void CZelMgrRef::warning(const char* text)
{
    if (mDocumentBlock == nullptr || mFeedback == nullptr)
        return;
    const CHold hold(mDocumentBlock);
    if (!hold.isAlive())
        return;
    try {
        mFeedback->message(mDocument, text);
    } catch (...) {
        // A client that fails to take a warning must not change what the library does.
    }
}

void CZelMgrRef::exceptionWarning(const char* context, const std::exception& exception)
{
    const char* text = exceptionText(exception);
    warnJoined(*this, {"Exception in ", context, " : ", text}, text);
}

void CZelMgrRef::unknownExceptionWarning(const char* context)
{
    warnJoined(*this, {"Unknown exception in ", context}, "Unknown exception");
}

std::uint32_t CZelMgrRef::languageKey() const
{
    return static_cast<std::uint32_t>(static_cast<unsigned char>(mLanguage[0])) * 256 +
           static_cast<unsigned char>(mLanguage[1]);
}

} // namespace OvZel
