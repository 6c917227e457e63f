#pragma once

#include "objects/CZelTake.h"
#include "objects/CZelZelObjectDefinition.h"

#include <zel/IZelAnimatedObject.h>

#include <array>

namespace OvZel {

/// What a definition of a character has of its own.
class CZelAnimatedObject final : public TZelFrontier<IZelAnimatedObject>, public IObjectDelegate {
public:
    using CTakes = TObject2Mgr<CZelTake, IZelTake>;

    /// Reads the data as far as they go.
    CZelAnimatedObject(CZelZelObjectDefinition& definition, CZelXMLIO& io, const CZelXMLGet& data);

    std::int32_t getExternalFileType() const override { return mExternalFileType; }
    void setExternalFileType(std::int32_t type) override { mExternalFileType = type; }
    const char* getExternalFile() const override;
    void setExternalFile(const char* file) override;
    const TZelObjectMgr<IZelTake>* getTakes() const override { return mTakes.get(); }
    CTakes* getTakes() override { return mTakes.get(); }
    std::int32_t getIndex() const override { return mIndex; }
    void setIndex(std::int32_t index) override { mIndex = index; }
    const IZelZelObjectDefinition* getDefinition() const override { return &mDefinition; }
    IZelZelObjectDefinition* getDefinition() override { return &mDefinition; }
    const double* getInitialMatrix() const override { return mInitialMatrix.data(); }
    void setInitialMatrix(const double* matrix) override;

    void save(CZelXMLIO& io, const CZelXMLAdd& data) override;

private:
    CZelZelObjectDefinition& mDefinition;
    std::int32_t mExternalFileType = 0;
    TZelComPtr<CTakes> mTakes;
    std::int32_t mIndex = 0;
    std::array<double, 16> mInitialMatrix{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
};

} // namespace OvZel
