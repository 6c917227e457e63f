#pragma once

#include "core/CZelString.h"
#include "core/TZelFrontier.h"
#include "xml/CZelXMLBasicData.h"

#include <zel/IZelZelObjectDefinition.h>

#include <optional>

namespace OvZel {

/// The name operations of a definition's interface.
///
/// Interface and basic data both have a getName, with different results, so each is overridden in a
/// class on its base alone.
class CDefinitionName : public TZelFrontier<IZelZelObjectDefinition> {
public:
    const IZelString* getName() const override { return &*mName; }
    IZelString* getName() override { return &*mName; }

protected:
    ~CDefinitionName() override = default;

    /// Made by the definition once it knows its document.
    std::optional<CZelString> mName;
};

/// The basic data of a definition: its name is that of the definition in the current language.
class CDefinitionBasicData : public CZelXMLBasicData {
public:
    const char* getName() const override { return definitionName().getCurrentText(); }
    void setName(const char* name) override;

    /// The name in all languages.
    virtual IZelString& definitionName() const = 0;

protected:
    ~CDefinitionBasicData() = default;
};

} // namespace OvZel
