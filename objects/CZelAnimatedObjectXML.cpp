#include "objects/CZelAnimatedObject.h"

#include "objects/renewed.h"
#include "xml/listXML.h"
#include "xml/readWhileItLasts.h"

namespace OvZel {

namespace {

constexpr CZelLabel kExternalFileTypes[] = {{"Skeleton", 0}, {"FBX", 1}, {nullptr, 0}};

} // namespace

CZelAnimatedObject::CZelAnimatedObject(CZelZelObjectDefinition& definition, CZelXMLIO& io,
                                       const CZelXMLGet& data)
    : mDefinition(definition), mTakes(new CTakes(definition.getObjectLink()))
{
    // A new definition has nothing to read; that is no failure.
    readWhileItLasts([&] {
        mExternalFileType = data.GetAttributeLabel("External.File.Type", kExternalFileTypes);
        mIndex = data.GetInteger("Index");
        if (data.IsElement("Initial.Matrix"))
            mInitialMatrix = data.GetZelMatrix("Initial.Matrix");
        if (data.IsElement("Takes"))
            getItems(io, data.GetElement("Takes"), "Take", *mTakes);
    });
}

void CZelAnimatedObject::save(CZelXMLIO& io, const CZelXMLAdd& data)
{
    data.AddAttributeLabel("External.File.Type", kExternalFileTypes, mExternalFileType);
    data.AddInteger(renewed(data, "Index"), mIndex);
    data.AddZelMatrix(renewed(data, "Initial.Matrix"), mInitialMatrix.data());
    addItems(io, data.ReuseElement("Takes"), "Take", *mTakes);
}

} // namespace OvZel
