#include "document/CZEL.h"

#include "core/OvThrow.h"
#include "document/CCheckZELFile.h"
#include "document/CReadMediaInfo.h"
#include "document/CZELCDATAReader.h"
#include "document/CZELXMLReadStream.h"
#include "render/renderParametersXML.h"
#include "xml/CZelCancelled.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"
#include "xml/tree/CXMLTreeReader.h"

using OrvaneXML::XIXMLElement;

namespace OvZel {

namespace {

/// Runs a read; what goes wrong becomes a message and false.
template <class Operation>
bool guarded(CZEL& document, Operation operation)
{
    try {
        return operation();
    } catch (const CZelCancelled&) {
        // The section that was cancelled has told it.
    } catch (const std::exception& exception) {
        document.sendMessage(exceptionText(exception));
    } catch (...) {
        document.sendMessage("Unknown reading error");
    }
    return false;
}

} // namespace

bool CZEL::read(IZelReadStream* stream, IZelExtStorageReader* reader)
{
    return guarded(*this, [&] {
        OvThrow::IfNULL(stream);
        return readDocument(*stream, reader != nullptr ? *reader : *this);
    });
}

bool CZEL::readDocument(IZelReadStream& stream, IZelExtStorageReader& reader)
{
    mDefinitionIndex.reset();
    CZELXMLReadStream source(&stream);
    const std::int64_t start = stream.getPosition();
    CCheckZELFile check;
    check.Parse(&source);
    if (check.library().major == 0) {
        sendMessage("Not a valid zel file");
        return false;
    }
    stream.setPosition(start);
    mFileMajor = check.fileMajor();
    mFileMinor = check.fileMinor();
    mLibraryVersion = check.library();

    CZELCDATAReader sections(*this, reader, CZELCDATAReader::EMode::Document);
    OrvaneXML::CXMLTreeReader treeReader(&sections);
    installTree(std::unique_ptr<OrvaneXML::XCXMLTree>(treeReader.ReadTree(&source)));

    CZelXMLIO io(mMgrRef.getPtr(), true);
    readSections(io, CZelXMLGet(mFileNode));
    layOutFixedElements();
    return true;
}

void CZEL::installTree(std::unique_ptr<OrvaneXML::XCXMLTree> tree)
{
    mTree = std::move(tree);
    XIXMLElement* root = mTree->GetRoot();
    mFileNode = root->FindElement(root->MakeKey("Zel.File"));
    mApplicationInstruction = nullptr;
    mFormatInstruction = nullptr;
    for (OrvaneXML::XIXMLData* node = root->GetFirstNode(); node != nullptr;
         node = node->GetNextNode()) {
        OrvaneXML::XIXMLInstruction* instruction = node->AsInstruction();
        if (instruction == nullptr)
            continue;
        const std::string target = instruction->GetTarget();
        if (target == "Application" && mApplicationInstruction == nullptr)
            mApplicationInstruction = instruction;
        else if (target == "Zel" && mFormatInstruction == nullptr)
            mFormatInstruction = instruction;
    }
    if (mApplicationInstruction != nullptr)
        takeApplication(mApplicationInstruction->GetContent());
}

void CZEL::takeApplication(std::string text)
{
    // All leading characters of this set go, so a name that begins with n, a, m or e loses them;
    // files have been read this way from the start.
    constexpr char kOpening[] = "name=\"";
    constexpr char kMiddle[] = "\" version=\"";
    constexpr std::size_t kMiddleLength = sizeof kMiddle - 1;
    text.erase(0, text.find_first_not_of(kOpening));
    const std::size_t middle = text.find(kMiddle);
    if (text.size() < kMiddleLength || middle == std::string::npos)
        return;
    mApplicationName = text.substr(0, middle);
    const std::string version = text.substr(middle + kMiddleLength);
    if (const std::size_t end = version.find('"'); end != std::string::npos)
        mApplicationVersion = version.substr(0, end);
}

void CZEL::readSections(CZelXMLIO&, const CZelXMLGet& in)
{
    if (in.IsElement("File.Info"))
        mFileInfo->getFrom(CZelXMLGet(in.GetElement("File.Info")));
    if (in.IsElement("InternalComponentDefinitions"))
        readDefinitions(CZelXMLGet(in.GetElement("InternalComponentDefinitions")));
    OvThrow::IfNULL(in.FindElement("Working.Window"));
    if (in.IsElement("Object.Definition")) {
        const CZelXMLGet definition(in.GetElement("Object.Definition"));
        definition.GetLanguages("Name", mRootDefinition->definitionName());
    }
    if (in.IsElement("Tmp.Render.Parameters"))
        OvZel::getRenderParameters(mRenderParameters,
                                   CZelXMLGet(in.GetElement("Tmp.Render.Parameters")));
}

void CZEL::readDefinitions(const CZelXMLGet& in)
{
    // Their geometry blocks have made them; of two with one identifier the first is meant here.
    std::map<CZelUUID, CZelZelObjectDefinition*> definitions;
    for (std::int32_t i = 0; i < mDefinitions->size(); ++i)
        definitions.emplace(*mDefinitions->at(i)->getId(), mDefinitions->at(i));
    for (XIXMLElement* wrapper = in.FindElement("InternalComponentDefinition"); wrapper != nullptr;
         wrapper = wrapper->GetNextSame()) {
        const CZelXMLGet item(wrapper);
        const auto found = definitions.find(item.GetUUID("UUID"));
        OvThrow::IfFalse(found != definitions.end());
        found->second->setGeometryLevel(item.GetInteger("Geometry.Level"));
    }
}

void CZEL::readCData(IZelReadStream* stream, IZelExtStorageReader* reader)
{
    guarded(*this, [&] {
        OvThrow::IfNULL(stream);
        mDefinitionIndex.reset();
        CZELXMLReadStream source(stream);
        CZELCDATAReader sections(*this, reader != nullptr ? *reader : *this,
                                 CZELCDATAReader::EMode::Sections);
        OrvaneXML::CXMLTreeReader treeReader(&sections);
        const std::unique_ptr<OrvaneXML::XCXMLTree> discarded(treeReader.ReadTree(&source));
        return true;
    });
}

bool CZEL::readMediaInfo(IZelReadStream* stream)
{
    try {
        OvThrow::IfNULL(stream);
        CZELXMLReadStream source(stream);
        CReadMediaInfo(mRootDefinition->definitionName()).FastParse(&source);
    } catch (...) {
        // What was found up to here is the answer.
    }
    return true;
}

} // namespace OvZel
