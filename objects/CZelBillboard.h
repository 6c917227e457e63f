#pragma once

#include "core/TObjectMgr.h"
#include "core/TZelFrontier.h"

#include <zel/IZelBillboard.h>

#include <string>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// The description of a billboard, a part of its entry.
class CZelBillboard final : public TZelFrontier<IZelBillboard> {
public:
    /// The name in one language.
    class CZelBBName final : public TZelFrontier<IZelBBName> {
    public:
        std::uint32_t getLanguage() const override { return mLanguage; }
        void setLanguage(std::uint32_t language) override { mLanguage = language; }
        const char* getText() const override { return mText.c_str(); }
        void setText(const char* text) override { mText = text != nullptr ? text : ""; }

    private:
        std::uint32_t mLanguage = 'e' * 256 + 'n';
        std::string mText;
    };
    using CNames = TObjectMgr<CZelBBName, IZelBBName>;

    /// The link is that of the entry.
    explicit CZelBillboard(IZelObjectLink* owner) : mNames(new CNames(owner)) {}

    const TZelObjectMgr<IZelBBName>* getNames() const override { return mNames.get(); }
    CNames* getNames() override { return mNames.get(); }
    std::int32_t getKind() const override { return mKind; }
    void setKind(std::int32_t kind) override { mKind = kind; }
    std::int32_t getNbFaces() const override { return mNbFaces; }
    void setNbFaces(std::int32_t count) override { mNbFaces = count; }
    bool getAnimate() const override { return mAnimate; }
    void setAnimate(bool animate) override { mAnimate = animate; }
    double getScale() const override { return mScale; }
    void setScale(double scale) override { mScale = scale; }
    const CZelPoint& getNormal() const override { return mNormal; }
    void setNormal(const CZelPoint& normal) override { mNormal = normal; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    void addNames(const CZelXMLAdd& out) const;
    void getNamesFrom(const CZelXMLGet& in);

    TZelComPtr<CNames> mNames;
    std::int32_t mKind = 1;
    std::int32_t mNbFaces = 0;
    bool mAnimate = false;
    double mScale = 1.0;
    CZelPoint mNormal{0.0, 1.0, 0.0};
};

} // namespace OvZel
