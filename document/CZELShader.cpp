#include "document/CZEL.h"

#include "core/OvThrow.h"
#include "document/CZELXMLReadStream.h"
#include "document/CZELXMLWriteStream.h"
#include "materials/CTCENodeXML.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"
#include "xml/tree/CXMLTreeReader.h"

#include <zel/IZelProperty.h>
#include <zel/IZelTCE.h>

using OrvaneXML::XIXMLElement;

namespace OvZel {

namespace {

/// Runs a read or write; what goes wrong becomes a message and false.
template <class Operation>
bool guarded(CZEL& document, const char* unknown, Operation operation)
{
    try {
        return operation();
    } catch (const std::exception& exception) {
        document.sendMessage(exceptionText(exception));
    } catch (...) {
        document.sendMessage(unknown);
    }
    return false;
}

ITCENode* rootOf(IZelProperty* property)
{
    IZelTCE* tree = property != nullptr ? property->getTCE() : nullptr;
    return tree != nullptr ? tree->getRootNode() : nullptr;
}

/// The stream stays where it is.
bool beginsLikeXML(IZelReadStream& stream)
{
    const std::int64_t start = stream.getPosition();
    char first = '\0';
    const bool isThere = stream.read(&first, 1) == 1;
    stream.setPosition(start);
    return isThere && first == '<';
}

/// The older form: one node, which takes the place of what hangs under the root.
bool readNode(CZelXMLIO& io, ITCENode& root, XIXMLElement& shader)
{
    const CZelXMLGet node(CZelXMLGet(&shader).GetElement("Node"));
    const TZelComPtr<CTCENode> made = getNode(io, node, &root);
    if (!made)
        OvThrow::Signal("Can't root's child");
    root.setChild(0, made.get());
    return true;
}

bool readWhole(IZelProperty& property, XIXMLElement* shader)
{
    if (shader == nullptr)
        OvThrow::Signal("This is not a shader");
    if (!CZelXMLGet(shader).IsElement("Property"))
        OvThrow::Signal("Missing property data");
    return property.getBasicData()->initWithXML(shader, true);
}

} // namespace

bool CZEL::readShader(IZelProperty* property, IZelReadStream* stream)
{
    return guarded(*this, "Unknown shader reading error", [&] {
        if (stream == nullptr)
            OvThrow::Signal("read stream is NULL");
        ITCENode* root = rootOf(property);
        if (root == nullptr)
            OvThrow::Signal("Can't get root node");
        if (!beginsLikeXML(*stream))
            OvThrow::Signal("CZEL::readShader - Only XML shader are supported");

        CZELXMLReadStream source(stream);
        const std::unique_ptr<OrvaneXML::XCXMLTree> tree(
            OrvaneXML::CXMLTreeReader(nullptr).ReadTree(&source));
        const CZelXMLGet document(tree->GetRoot());
        if (XIXMLElement* shader = document.FindElement("Orvane.Shader")) {
            CZelXMLIO io(mMgrRef.getPtr(), true);
            return readNode(io, *root, *shader);
        }
        return readWhole(*property, document.FindElement("Zel.Shader"));
    });
}

bool CZEL::writeShader(IZelProperty* property, IZelWriteStream* stream)
{
    return guarded(*this, "Unknown shader writing error", [&] {
        OrvaneXML::XCXMLTree tree;
        if (property == nullptr)
            OvThrow::Signal("Property is NULL");
        const CZelXMLAdd shader(CZelXMLAdd(tree.GetRoot()).AddElement("Zel.Shader"));
        CZelXMLIO io(mMgrRef.getPtr(), false);
        ITCENode* root = rootOf(property);
        if (root == nullptr)
            OvThrow::Signal("Property root is NULL");
        ITCENode* child = root->getChild(0);
        if (child == nullptr)
            OvThrow::Signal("Property root's child is NULL");
        // readShader looks for a "Property" here and not for a "Node". Shader documents have been
        // written like this from the start.
        addNode(io, CZelXMLAdd(shader.AddElement("Node")), child);
        OvThrow::IfNULL(stream);
        CZELXMLWriteStream target(stream);
        tree.Write(&target);
        return true;
    });
}

IZelProperty* CZEL::newShader()
{
    return mShaders->newZelObject(-1);
}

void CZEL::removeShader(IZelProperty* property)
{
    // Only the first one is ever looked at; existing clients remove theirs in this order.
    if (property != nullptr && mShaders->size() > 0 && property == mShaders->at(0))
        mShaders->removeObject(0);
}

} // namespace OvZel
