#pragma once

#include <zel/CZelPoint.h>
#include <zel/CZelUUID.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

/// The description of a billboard, part of its entry. Every value is stored as it was given.
class IZelBillboard {
public:
    /// The name in one language. Part of its billboard.
    class IZelBBName {
    public:
        static constexpr CZelUUID sIID{"803CA4F6474741158EFC4A52449F3B70"};

        /// A key of IZelString, that of "en" in a new name. A name whose key is not two letters is
        /// not saved, and of several names with one key the last is.
        virtual std::uint32_t getLanguage() const = 0;
        virtual void setLanguage(std::uint32_t language) = 0;
        /// Empty in a new name. Good until its next change.
        virtual const char* getText() const = 0;
        /// Null counts as the empty text.
        virtual void setText(const char* text) = 0;

    protected:
        ~IZelBBName() = default;
    };

    /// The names by language, empty in a new billboard; never null, good as long as it.
    virtual const TZelObjectMgr<IZelBBName>* getNames() const = 0;
    virtual TZelObjectMgr<IZelBBName>* getNames() = 0;
    /// 0 "Flat", 1 "Uniface", 2 "Multifaces"; 1 in a new billboard. A number without a label fails
    /// the next save.
    virtual std::int32_t getKind() const = 0;
    virtual void setKind(std::int32_t kind) = 0;
    /// 0 in a new billboard.
    virtual std::int32_t getNbFaces() const = 0;
    virtual void setNbFaces(std::int32_t count) = 0;
    /// False in a new billboard.
    virtual bool getAnimate() const = 0;
    virtual void setAnimate(bool animate) = 0;
    /// 1.0 in a new billboard.
    virtual double getScale() const = 0;
    virtual void setScale(double scale) = 0;
    /// 0, 1, 0 in a new billboard.
    virtual const CZelPoint& getNormal() const = 0;
    virtual void setNormal(const CZelPoint& normal) = 0;

protected:
    ~IZelBillboard() = default;
};

} // namespace OvZel
