#pragma once

#include <zel/CZelUUID.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace OvZel {
class IZelMgr;
class IZelProperty;
} // namespace OvZel

namespace tool {

/// The properties of a document and of its components as the materials of an MTL file.
///
/// Each gets the name of its property. Properties of one name that would be the same material are
/// one; of those that differ the further ones get a number.
class CObjMaterials {
public:
    explicit CObjMaterials(OvZel::IZelMgr& document);

    /// The materials of a component by index, those of the document for the null identifier.
    const std::vector<std::string>& namesOf(const OvZel::CZelUUID& owner) const;
    /// The text of the MTL file, empty without any material.
    const std::string& text() const { return mText; }

private:
    void addOwner(const OvZel::CZelUUID& owner,
                  OvZel::TZelObjectMgr<OvZel::IZelProperty>& properties);
    std::string add(OvZel::IZelProperty& property, std::int32_t index);

    std::map<OvZel::CZelUUID, std::vector<std::string>> mNames;
    std::map<std::string, std::string> mBodies; // by name
    std::string mText;
};

} // namespace tool
