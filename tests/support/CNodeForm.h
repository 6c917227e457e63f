#pragma once

#include "materials/CZelTCE.h"
#include "tests/support/checkElement.h"

#include <string>
#include <vector>

namespace ZelTest {

/// A node with the root of a material above it, so that its reports have a place to go. Its file
/// form is that of its own values, without the frame of all nodes and the children.
template <class Node>
class CNodeForm {
public:
    explicit CNodeForm(OvZel::IZelObjectLink* property)
        : mRoot(new OvZel::CZelTCE(property)), mNode(new Node(mRoot.get()))
    {
    }
    CNodeForm(OvZel::IZelObjectLink* property, const Node& source)
        : mRoot(new OvZel::CZelTCE(property)), mNode(new Node(mRoot.get(), source))
    {
    }

    Node& node() const { return *mNode; }

    void addTo(OvZel::CZelXMLIO& io, const OvZel::CZelXMLAdd& out) const { mNode->addTo(io, out); }
    void getFrom(OvZel::CZelXMLIO& io, const OvZel::CZelXMLGet& in)
    {
        mNode->getFirst(io, in);
        mNode->getFrom(io, in);
    }

private:
    OvZel::TZelComPtr<OvZel::CZelTCE> mRoot;
    OvZel::TZelComPtr<Node> mNode;
};

/// What the node writes.
template <class Node>
std::string textOfNode(CTestDocument& document, const CNodeForm<Node>& form)
{
    CTestElement target;
    OvZel::CZelXMLIO io(document.ref(), true);
    form.addTo(io, OvZel::CZelXMLAdd(OvZel::CZelXMLAdd(target.element()).AddElement("Node")));
    const std::string text = target.text();
    return text.substr(text.find("<E"));
}

/// Reads the element inside the document element.
template <class Node>
void readNode(CTestDocument& document, CNodeForm<Node>& form, const std::string& xml)
{
    const CTestElement source(xml);
    OvZel::CZelXMLIO io(document.ref(), true);
    form.getFrom(io, OvZel::CZelXMLGet(source.element()->GetFirstElement()));
}

/// Checks that the values reach another node through getters and setters, by `passOn`, and that the
/// copying constructor takes them over.
template <class Node, class PassOn>
void checkCopies(const std::vector<CRow>& rows, PassOn passOn)
{
    CTestDocument document;
    CItems items("Node", rows, {});
    items.setAll(CItems::EState::Full);
    const std::string full = items.text();
    CNodeForm<Node> source(document.ref());
    readNode(document, source, full);
    source.node().setUIValue(17);

    CNodeForm<Node> other(document.ref());
    passOn(source.node(), other.node());
    EXPECT_EQ(textOfNode(document, other), full) << "through getters and setters";

    CNodeForm<Node> copy(document.ref(), source.node());
    EXPECT_EQ(textOfNode(document, copy), full) << "by the copying constructor";
    EXPECT_EQ(copy.node().getUIValue(), 17U);
    EXPECT_EQ(textOfNode(document, source), full) << "the source stays";
}

/// A 3D value without its "Z" under a read transform that moves by 10, 20, 30 tells how it is read:
/// 11, 22, 30 is a point, 1, 2, 0 a vector and 1, 2, 1 a direction.
struct CReadAs {
    std::string tag;
    std::array<double, 3> value;
};

inline std::vector<double> movingMatrix()
{
    return {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 10, 20, 30, 1};
}

/// Checks how the 3D values of a node are read; the others are those of the full file.
template <class Node>
void checkTransform(const std::vector<CRow>& rows, const std::vector<CReadAs>& cases)
{
    CTestDocument document;
    std::vector<CRow> given = rows;
    std::vector<CRow> expected = rows;
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (const CReadAs& each : cases)
            if (rows[i].name == each.tag) {
                given[i].full = "<" + each.tag + " X=\"1\" Y=\"2\"/>";
                expected[i].full = xyz(each.tag, each.value, {}).full;
            }
    CItems from("Node", given, {});
    from.setAll(CItems::EState::Full);
    CItems to("Node", expected, {});
    to.setAll(CItems::EState::Full);

    CNodeForm<Node> form(document.ref());
    document.ref()->setMatrix(movingMatrix().data());
    readNode(document, form, from.text());
    EXPECT_EQ(textOfNode(document, form), to.text());
}

} // namespace ZelTest
