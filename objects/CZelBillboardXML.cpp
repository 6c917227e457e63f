#include "objects/CZelBillboard.h"

#include "core/OvThrow.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

namespace {

// The last label is not that of the instances' kind.
constexpr CZelLabel kKinds[] = {{"Flat", 0}, {"Uniface", 1}, {"Multifaces", 2}, {nullptr, 0}};

} // namespace

void CZelBillboard::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    addNames(CZelXMLAdd(out.AddElement("Names")));
    const CZelXMLAdd behavior(out.AddElement("Behavior"));
    behavior.AddAttributeLabel("Kind", kKinds, mKind);
    behavior.AddInteger("NbFaces", mNbFaces);
    behavior.AddBoolean("Animate", mAnimate);
    behavior.AddDouble("Scale", mScale);
    behavior.AddCoord3D("Normal", mNormal);
}

void CZelBillboard::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    getNamesFrom(in);
    const CZelXMLGet behavior(in.GetElement("Behavior"));
    mKind = behavior.GetAttributeLabel("Kind", kKinds);
    mNbFaces = behavior.GetInteger("NbFaces");
    mAnimate = behavior.IsElement("Animate");
    mScale = behavior.GetDouble("Scale");
    mNormal = behavior.GetDirection("Normal", io.getMgrRef());
}

/// One attribute a name; of two in one language the later one stands.
void CZelBillboard::addNames(const CZelXMLAdd& out) const
{
    for (std::int32_t i = 0; i < mNames->size(); ++i) {
        const CZelBBName& name = *mNames->at(i);
        out.AddLanguage(name.getLanguage(), name.getText());
    }
}

void CZelBillboard::getNamesFrom(const CZelXMLGet& in)
{
    const CZelXMLGet names(in.GetElement("Names"));
    mNames->removeAllObjects();
    names.ForEachLanguage([this](std::uint32_t language, const char* text) {
        CZelBBName* name = mNames->append();
        OvThrow::IfNULL(name);
        name->setLanguage(language);
        name->setText(text);
    });
}

} // namespace OvZel
