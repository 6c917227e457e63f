#pragma once

#include <zel/CZelPixel2D.h>
#include <zel/CZelPoint.h>
#include <zel/CZelPoint2D.h>
#include <zel/IZelXML.h>

#include <cstdint>

namespace OvZel {

/// The state of the tool that matches a photograph to the scene: axes and vanishing lines that the
/// user puts on the picture. Part of a camera. Flags, values, angle and snapshot mean what the
/// client makes of them.
///
/// Only in memory live the axes positions, flags A, B and C, the accumulator, the angle and the
/// snapshot: the file has no place for them, and must not get one, since a reader takes any other
/// number of entries for its older form. An inactive object saves nothing at all.
///
/// A bad index in an operation on points warns with the operation's name, as in "getAxesPosition:
/// index out of range"; a getter then gives zeros and a setter changes nothing. Without a document
/// nothing warns.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelInsertionObject : public IZelXML {
public:
    /// False in a new one. A load makes it true exactly when the file has values for it.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// Four axes, index 0 to 3.
    virtual CZelPoint2D getAxesPosition(std::int32_t index) const = 0;
    virtual void setAxesPosition(std::int32_t index, const CZelPoint2D& point) = 0;
    /// Fifteen points of the vanishing lines, index 0 to 14, in two tables: normalised and in
    /// pixels. Setting a pixel point also sets the normalised one: each coordinate is divided by
    /// the picture's size in its direction or, when the picture is higher than wide, both by the
    /// height; a size of 0 gives 0. Setting a normalised point leaves the pixels alone. A null
    /// point does nothing.
    virtual void getVanishingLinesPointsPosition(std::int32_t index, CZelPoint2D* point) const = 0;
    virtual void getVanishingLinesPointsPosition(std::int32_t index, CZelPixel2D* point) const = 0;
    virtual void setVanishingLinesPointsPosition(std::int32_t index, const CZelPoint2D& point) = 0;
    virtual void setVanishingLinesPointsPosition(std::int32_t index, const CZelPixel2D& point) = 0;
    /// Three values, index 0 to 2, 0 in a new one. Any other index stores nothing and gives 0;
    /// nothing warns.
    virtual void setValue(std::int32_t index, float value) = 0;
    virtual float getValue(std::int32_t index) const = 0;
    /// A sum, 0 in a new one.
    virtual void addToAccumulator(float value) = 0;
    /// Null does nothing.
    virtual void getAccumulator(float* value) const = 0;
    /// Back to 0.
    virtual void resetAccumulator() = 0;
    /// In pixels, 1 by 1 in a new one. With keep, nothing happens when the size is the same.
    virtual void setPictureSize(std::uint32_t width, std::uint32_t height, bool keep) = 0;
    /// Either may be null.
    virtual void getPictureSize(std::uint32_t* width, std::uint32_t* height) const = 0;
    /// Always 60.
    virtual float getAngle() const = 0;
    /// True in a new one; flags B, C, D and E are false.
    virtual bool getFlagA() const = 0;
    /// False in a new one.
    virtual void setFlagE(bool flag) = 0;
    /// False in a new one.
    virtual bool getFlagE() const = 0;
    /// Six values, index 0 to 5, 1 in a new one. Any other index stores nothing and gives 0;
    /// nothing warns.
    virtual void setSixValue(std::int32_t index, float value) = 0;
    /// All six become 1, and flag E false.
    virtual void resetSixValues() = 0;
    /// As setSixValue tells.
    virtual float getSixValue(std::int32_t index) const = 0;
    /// See getFlagA.
    virtual void setFlagA(bool flag) = 0;
    /// In memory only; false in a new one.
    virtual void setFlagB(bool flag) = 0;
    /// In memory only; false in a new one.
    virtual bool getFlagB() const = 0;
    /// In memory only; false in a new one.
    virtual void setFlagC(bool flag) = 0;
    virtual bool getFlagC() const = 0;
    /// False in a new one.
    virtual void setFlagD(bool flag) = 0;
    virtual bool getFlagD() const = 0;
    /// Puts values aside, apart from the live ones: 15 normalised points, 15 pixel points and three
    /// times 3 floats. A null array stores zeros.
    virtual void saveSnapshot(std::uint32_t width, std::uint32_t height, bool flagA, bool flagB,
                              bool flagC, bool flagD, const CZelPoint2D* normalised,
                              const CZelPixel2D* pixels, const float* values,
                              const float* firstThree, const float* lastThree) = 0;
    /// Hands back what the last saveSnapshot put aside, zeros before the first; the live values
    /// stay as they are. What is null is passed over.
    virtual void restoreSnapshot(std::uint32_t* width, std::uint32_t* height, bool* flagA,
                                 bool* flagB, bool* flagC, bool* flagD, CZelPoint2D* normalised,
                                 CZelPixel2D* pixels, float* values, float* firstThree,
                                 float* lastThree) const = 0;
    /// Six points, index 0 to 5. (sic)
    virtual CZelPoint2D getPerpectiveToolPosition(std::int32_t index) const = 0;
    virtual void setPerpectiveToolPosition(std::int32_t index, const CZelPoint2D& point) = 0;
    /// Four points of the scene, index 0 to 3. Good as long as the object.
    virtual const CZelPoint& getReperePosition(std::int32_t index) const = 0;
    virtual void setReperePosition(std::int32_t index, const CZelPoint& point) = 0;
    /// The axis along which a size is known: 0 x (in a new one), 1 y, 2 z. Any other number makes a
    /// save of an active object fail.
    virtual std::int32_t getSizeAxis() const = 0;
    virtual void setSizeAxis(std::int32_t axis) = 0;
    /// These four are false in a new one.
    virtual bool getAxesVisibility() const = 0;
    virtual void setAxesVisibility(bool visible) = 0;
    /// False in a new one.
    virtual bool getModelVisibility() const = 0;
    virtual void setModelVisibility(bool visible) = 0;
    /// False in a new one.
    virtual bool getPerspectiveToolVisibility() const = 0;
    virtual void setPerspectiveToolVisibility(bool visible) = 0;
    /// False in a new one.
    virtual bool getYAxeInverted() const = 0;
    virtual void setYAxeInverted(bool inverted) = 0;

protected:
    ~IZelInsertionObject() = default;
};

} // namespace OvZel
