#pragma once

#include "tools/CTransform.h"

#include <zel/CZelUUID.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace OvZel {
class IZelMgr;
}

namespace tool {

/// One object of an OBJ file.
struct CObjPlace {
    std::string name;    ///< empty: no object line
    std::string comment; ///< empty: none
    CTransform transform;
};

/// Where the instances of a document place its components.
class CObjPlaces {
public:
    explicit CObjPlaces(OvZel::IZelMgr& document);

    /// At least one: a component without an instance, and the mesh of the document itself, stay
    /// where they are.
    const std::vector<CObjPlace>& of(const OvZel::CZelUUID& component) const;
    /// The number of instances of another class, or of a component that the document doesn't have.
    std::uint64_t getNbLeftOut() const { return mNbLeftOut; }

private:
    void addComponents(OvZel::IZelMgr& document);
    void addInstances(OvZel::IZelMgr& document);

    std::map<OvZel::CZelUUID, std::string> mNames;
    std::map<OvZel::CZelUUID, std::vector<CObjPlace>> mPlaces;
    std::vector<CObjPlace> mInPlace{CObjPlace()};
    std::uint64_t mNbLeftOut = 0;
};

} // namespace tool
