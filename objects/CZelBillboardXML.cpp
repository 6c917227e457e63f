#include "objects/CZelBillboard.h"

#include "core/OvThrow.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

namespace {

// The last label is not that of the instances' kind.
constexpr CZelLabel kKinds[] = {{"Flat", 0}, {"Uniface", 1}, {"Multifaces", 2}, {nullptr, 0}};

bool isLetter(std::uint32_t code)
{
    return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z');
}

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
        const std::uint32_t key = name.getLanguage();
        // Anything but two letters would not be the name of an attribute.
        if (!isLetter(key >> 8) || !isLetter(key & 0xFF))
            continue;
        const char code[3] = {static_cast<char>(key >> 8), static_cast<char>(key & 0xFF), '\0'};
        out.AddAttribute(code, name.getText());
    }
}

void CZelBillboard::getNamesFrom(const CZelXMLGet& in)
{
    const OrvaneXML::XIXMLElement* names = in.GetElement("Names");
    mNames->removeAllObjects();
    for (const OrvaneXML::XIXMLAttribute* text = names->GetFirstAttribute(); text != nullptr;
         text = text->GetNext()) {
        const char* code = text->GetKey();
        const auto first = static_cast<unsigned char>(code[0]);
        const auto second = static_cast<unsigned char>(first != 0 ? code[1] : '\0');
        CZelBBName* name = mNames->append();
        OvThrow::IfNULL(name);
        name->setLanguage(first * 256U + second);
        name->setText(text->GetValue());
    }
}

} // namespace OvZel
