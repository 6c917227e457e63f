#include "core/CZelString.h"

#include "core/CZelMgrRef.h"

namespace OvZel {

void CZelString::copyFrom(const IZelString* source)
{
    if (source == this)
        return;
    clear();
    if (source == nullptr)
        return;
    for (std::uint32_t i = 0; i < source->getNbTexts(); ++i) {
        const std::uint32_t key = source->getLanguageKey(i);
        setText(key, source->getText(key));
    }
}

const char* CZelString::getText(std::uint32_t language) const
{
    const std::size_t place = find(language);
    return place < mTexts.size() ? mTexts[place].text.c_str() : nullptr;
}

const char* CZelString::getCurrentText() const
{
    if (const char* text = getText(currentKey()))
        return text;
    return mTexts.empty() ? "" : mTexts.front().text.c_str();
}

void CZelString::setText(std::uint32_t language, const char* text)
{
    const std::size_t place = find(language);
    if (place == mTexts.size()) {
        if (text != nullptr)
            mTexts.push_back({language, text});
    } else if (text != nullptr) {
        mTexts[place].text = text;
    } else {
        mTexts.erase(mTexts.begin() + static_cast<std::ptrdiff_t>(place));
        mPlaces.clear();
    }
}

void CZelString::clear()
{
    mTexts.clear();
    mPlaces.clear();
}

std::uint32_t CZelString::getLanguageKey(std::uint32_t index) const
{
    return index < mTexts.size() ? mTexts[index].language : 0;
}

std::uint32_t CZelString::currentKey() const
{
    constexpr std::uint32_t kEnglish = 'e' * 256 + 'n';
    return mMgrRef ? CZelMgrRef::from(mMgrRef.get())->languageKey() : kEnglish;
}

std::size_t CZelString::find(std::uint32_t language) const
{
    constexpr std::size_t kFew = 32;
    if (mTexts.size() > kFew)
        return findAmongMany(language);
    std::size_t place = 0;
    while (place < mTexts.size() && mTexts[place].language != language)
        ++place;
    return place;
}

std::size_t CZelString::findAmongMany(std::uint32_t language) const
{
    for (std::size_t place = mPlaces.size(); place < mTexts.size(); ++place)
        mPlaces.emplace(mTexts[place].language, place);
    const auto found = mPlaces.find(language);
    return found != mPlaces.end() ? found->second : mTexts.size();
}

} // namespace OvZel
