#include "core/CZelString.h"

#include "core/CZelMgrRef.h"

#include <algorithm>

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
    const auto found = const_cast<CZelString*>(this)->find(language);
    return found != mTexts.end() ? found->text.c_str() : nullptr;
}

const char* CZelString::getCurrentText() const
{
    if (const char* text = getText(currentKey()))
        return text;
    return mTexts.empty() ? "" : mTexts.front().text.c_str();
}

void CZelString::setText(std::uint32_t language, const char* text)
{
    const auto found = find(language);
    if (found == mTexts.end()) {
        if (text != nullptr)
            mTexts.push_back({language, text});
    } else if (text != nullptr) {
        found->text = text;
    } else {
        mTexts.erase(found);
    }
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

std::vector<CZelString::CText>::iterator CZelString::find(std::uint32_t language)
{
    return std::find_if(mTexts.begin(), mTexts.end(),
                        [=](const CText& entry) { return entry.language == language; });
}

} // namespace OvZel
