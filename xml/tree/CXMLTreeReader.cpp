#include "xml/tree/CXMLTreeReader.h"

#include "xml/tree/CXMLTreeBuilder.h"

#include <memory>

namespace OrvaneXML {

XCXMLTree* CXMLTreeReader::ReadTree(XIXMLReadStream* stream)
{
    auto tree = std::make_unique<XCXMLTree>();
    auto& root = static_cast<CXMLElement&>(*tree->GetRoot());
    CXMLTreeBuilder(root, mReader, *stream).Run();
    return tree.release();
}

} // namespace OrvaneXML
