#include "xml/tree/XCXMLTree.h"

#include "xml/tree/CXMLCDataNode.h"
#include "xml/tree/CXMLElement.h"
#include "xml/tree/CXMLWriter.h"

#include <stdexcept>

namespace OrvaneXML {

XCXMLTree::XCXMLTree()
{
    mStore.root = mStore.New<CXMLElement>(mStore.names.Intern({}));
}

XCXMLTree::~XCXMLTree()
{
    CXMLCDataNode::DestroyProviders(mStore);
}

const XIXMLElement* XCXMLTree::GetRoot() const
{
    return mStore.root;
}

XIXMLElement* XCXMLTree::GetRoot()
{
    return mStore.root;
}

bool XCXMLTree::Write(XIXMLWriteStream* stream) const
{
    if (mStore.nbBad)
        throw std::runtime_error("The XML tree has a name, a comment or an instruction that XML "
                                 "cannot hold");
    return CXMLWriter(*stream).Write(*mStore.root);
}

} // namespace OrvaneXML
