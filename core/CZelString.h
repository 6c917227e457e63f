#pragma once

#include "core/TZelComPtr.h"
#include "core/TZelFrontier.h"

#include <zel/IZelMgrRef.h>
#include <zel/IZelString.h>

#include <string>
#include <unordered_map>
#include <vector>

namespace OvZel {

/// A text in several languages.
class CZelString : public TZelFrontier<IZelString> {
public:
    /// The reference object tells the current language; null means "en".
    explicit CZelString(IZelMgrRef* mgrRef) : mMgrRef(mgrRef) {}
    virtual ~CZelString() = default;

    void copyFrom(const IZelString* source) override;
    const char* getText(std::uint32_t language) const override;
    const char* getCurrentText() const override;
    void setText(std::uint32_t language, const char* text) override;
    void setCurrentText(const char* text) override { setText(currentKey(), text); }
    std::uint32_t getNbTexts() const override { return static_cast<std::uint32_t>(mTexts.size()); }
    std::uint32_t getLanguageKey(std::uint32_t index) const override;
    void clear() override;

private:
    struct CText {
        std::uint32_t language;
        std::string text;
    };

    std::uint32_t currentKey() const;
    /// The place in mTexts, or the end.
    std::size_t find(std::uint32_t language) const;
    std::size_t findAmongMany(std::uint32_t language) const;

    TZelComPtr<IZelMgrRef> mMgrRef;
    std::vector<CText> mTexts;
    // The places of the first texts, only filled when there are many: a file may name thousands of
    // languages, and a search through all of them for each would take minutes.
    mutable std::unordered_map<std::uint32_t, std::size_t> mPlaces;
};

} // namespace OvZel
