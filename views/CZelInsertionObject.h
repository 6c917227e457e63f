#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelInsertionObject.h>

#include <array>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The tool that matches a photograph to the scene of a camera.
class CZelInsertionObject : public TZelXMLFrontierObjLink<IZelInsertionObject> {
public:
    explicit CZelInsertionObject(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner)
    {
        resetSixValues();
    }

    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    CZelPoint2D getAxesPosition(std::int32_t index) const override;
    void setAxesPosition(std::int32_t index, const CZelPoint2D& point) override;
    void getVanishingLinesPointsPosition(std::int32_t index, CZelPoint2D* point) const override;
    void getVanishingLinesPointsPosition(std::int32_t index, CZelPixel2D* point) const override;
    void setVanishingLinesPointsPosition(std::int32_t index, const CZelPoint2D& point) override;
    void setVanishingLinesPointsPosition(std::int32_t index, const CZelPixel2D& point) override;
    void setValue(std::int32_t index, float value) override;
    float getValue(std::int32_t index) const override;
    void addToAccumulator(float value) override { mAccumulator += value; }
    void getAccumulator(float* value) const override;
    void resetAccumulator() override { mAccumulator = 0.0F; }
    void setPictureSize(std::uint32_t width, std::uint32_t height, bool keep) override;
    void getPictureSize(std::uint32_t* width, std::uint32_t* height) const override;
    float getAngle() const override { return kAngle; }
    bool getFlagA() const override { return mFlagA; }
    void setFlagE(bool flag) override { mFlagE = flag; }
    bool getFlagE() const override { return mFlagE; }
    void setSixValue(std::int32_t index, float value) override;
    void resetSixValues() override;
    float getSixValue(std::int32_t index) const override;
    void setFlagA(bool flag) override { mFlagA = flag; }
    void setFlagB(bool flag) override { mFlagB = flag; }
    bool getFlagB() const override { return mFlagB; }
    void setFlagC(bool flag) override { mFlagC = flag; }
    bool getFlagC() const override { return mFlagC; }
    void setFlagD(bool flag) override { mFlagD = flag; }
    bool getFlagD() const override { return mFlagD; }
    void saveSnapshot(std::uint32_t width, std::uint32_t height, bool flagA, bool flagB, bool flagC,
                      bool flagD, const CZelPoint2D* normalised, const CZelPixel2D* pixels,
                      const float* values, const float* firstThree,
                      const float* lastThree) override;
    void restoreSnapshot(std::uint32_t* width, std::uint32_t* height, bool* flagA, bool* flagB,
                         bool* flagC, bool* flagD, CZelPoint2D* normalised, CZelPixel2D* pixels,
                         float* values, float* firstThree, float* lastThree) const override;
    CZelPoint2D getPerpectiveToolPosition(std::int32_t index) const override;
    void setPerpectiveToolPosition(std::int32_t index, const CZelPoint2D& point) override;
    const CZelPoint& getReperePosition(std::int32_t index) const override;
    void setReperePosition(std::int32_t index, const CZelPoint& point) override;
    std::int32_t getSizeAxis() const override { return mSizeAxis; }
    void setSizeAxis(std::int32_t axis) override { mSizeAxis = axis; }
    bool getAxesVisibility() const override { return mAxesVisibility; }
    void setAxesVisibility(bool visible) override { mAxesVisibility = visible; }
    bool getModelVisibility() const override { return mModelVisibility; }
    void setModelVisibility(bool visible) override { mModelVisibility = visible; }
    bool getPerspectiveToolVisibility() const override { return mPerspectiveToolVisibility; }
    void setPerspectiveToolVisibility(bool visible) override
    {
        mPerspectiveToolVisibility = visible;
    }
    bool getYAxeInverted() const override { return mYAxeInverted; }
    void setYAxeInverted(bool inverted) override { mYAxeInverted = inverted; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    static constexpr float kAngle = 60.0F;
    using CNormalised = std::array<CZelPoint2D, 15>;
    using CPixels = std::array<CZelPixel2D, 15>;

    struct CSnapshot {
        std::uint32_t width = 0;
        std::uint32_t height = 0;
        bool flagA = false;
        bool flagB = false;
        bool flagC = false;
        bool flagD = false;
        CNormalised normalised;
        CPixels pixels;
        std::array<float, 3> values{};
        std::array<float, 3> firstThree{};
        std::array<float, 3> lastThree{};
    };

    void addState(const CZelXMLAdd& out) const;
    void getState(const CZelXMLGet& in);

    bool mActive = false;
    std::array<CZelPoint2D, 4> mAxesPositions;
    CNormalised mNormalised;
    CPixels mPixels;
    std::array<float, 3> mValues{};
    float mAccumulator = 0.0F;
    std::uint32_t mWidth = 1;
    std::uint32_t mHeight = 1;
    bool mFlagA = true;
    bool mFlagB = false;
    bool mFlagC = false;
    bool mFlagD = false;
    bool mFlagE = false;
    std::array<float, 6> mSixValues;
    CSnapshot mSnapshot;
    std::array<CZelPoint2D, 6> mPerpectiveToolPositions;
    std::array<CZelPoint, 4> mReperePositions;
    CZelPoint mNoReperePosition; // what a bad index gives
    std::int32_t mSizeAxis = 0;
    bool mAxesVisibility = false;
    bool mModelVisibility = false;
    bool mPerspectiveToolVisibility = false;
    bool mYAxeInverted = false;
};

} // namespace OvZel
