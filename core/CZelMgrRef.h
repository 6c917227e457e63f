#pragma once

#include "core/CSelfBlock.h"
#include "core/TZelFrontier.h"

#include <zel/IZelMgrRef.h>
#include <zel/IZelWarning.h>

#include <utility>

namespace OvZel {

class IZelFeedback;

/// The reference object of a document: language, read transform and warning channel.
///
/// Objects of the document keep it, it keeps only the document's control block, so that no cycle of
/// counts arises and a kept object still answers when the document is gone.
class CZelMgrRef : public TZelFrontier<IZelMgrRef>, public IZelWarning {
public:
    using CBlockObject = CZelMgrRef;

    /// The block is that of the document, the feedback may be null.
    CZelMgrRef(IZelMgr* document, IZelSharedPtrBase* documentBlock, IZelFeedback* feedback);
    virtual ~CZelMgrRef();
    CZelMgrRef(const CZelMgrRef&) = delete;
    CZelMgrRef& operator=(const CZelMgrRef&) = delete;

    /// The library makes every reference object, so that each is one of these.
    static CZelMgrRef* from(IZelMgrRef* ref) { return static_cast<CZelMgrRef*>(ref); }

    std::int32_t QueryInterface(const CZelUUID& iid, void** out) override;
    std::uint32_t AddRef() override { return mSelf.addRef(); }
    std::uint32_t Release() override { return mSelf.release(); }
    IZelMgrRef* getMgrRef() const override { return const_cast<CZelMgrRef*>(this); }
    IZelObjectLink* getOwnerLink() const override { return nullptr; }
    IZelSharedPtrBase* getCOMWeakPtr() const override { return mDocumentBlock; }
    IZelSharedPtrBase* getSelfWeakPtr() const override { return mDocumentBlock; }
    TZelSharedPtr<CZelMgrRef>* getBlock() const { return mSelf.get(); }

    IZelMgr* getMgr() override;
    const char* getLanguage() const override { return mLanguage; }
    void setLanguage(const char* language) override;
    const double* getMatrix() const override { return mMatrix; }
    void setMatrix(const double* matrix) override;
    void transformNormal(double* normal) const override;
    void transformVector(double* vector) const override;
    void transformPoint(double* point) const override;

    void warning(const char* text) override;
    void exceptionWarning(const char* context, const std::exception& exception) override;
    void unknownExceptionWarning(const char* context) override;

    /// Switches the read transform on or off and keeps its matrix; true if it was on.
    bool switchTransform(bool on) { return std::exchange(mTransformActive, on); }

    /// The language as a key of IZelString.
    std::uint32_t languageKey() const;

private:
    CSelfBlock<CZelMgrRef> mSelf;
    IZelMgr* mDocument;
    IZelSharedPtrBase* mDocumentBlock;
    IZelFeedback* mFeedback;
    bool mTransformActive = false;
    char mLanguage[3] = "en";
    double mMatrix[16];
};

} // namespace OvZel
