#include "document/CZEL.h"

#include "core/OvThrow.h"
#include "geometry/CPointsProvider.h"
#include "geometry/CPolygonsProvider.h"
#include "xml/CImageProvider.h"

using OrvaneXML::XIXMLData;
using OrvaneXML::XIXMLElement;

namespace OvZel {

namespace {

/// Runs an operation on the tree; what goes wrong becomes a message and the failure value.
template <class Result, class Operation>
Result onTree(CZEL& document, const char* name, Result failure, Operation operation)
{
    CZelMgrRef& warnings = *CZelMgrRef::from(&document.blockMgrRef());
    try {
        return operation();
    } catch (const std::exception& exception) {
        warnings.exceptionWarning(name, exception);
    } catch (...) {
        warnings.unknownExceptionWarning(name);
    }
    return failure;
}

/// The comment of that number under the root, or null.
XIXMLData* findComment(XIXMLElement& root, std::int32_t index)
{
    std::uint32_t passed = 0;
    for (XIXMLData* node = root.GetFirstNode(); node != nullptr; node = node->GetNextNode())
        if (node->AsComment() != nullptr && passed++ == static_cast<std::uint32_t>(index))
            return node;
    return nullptr;
}

std::uint32_t countCommentsBefore(XIXMLElement& root, const XIXMLData* end)
{
    std::uint32_t count = 0;
    for (XIXMLData* node = root.GetFirstNode(); node != end; node = node->GetNextNode())
        if (node->AsComment() != nullptr)
            ++count;
    return count;
}

XIXMLElement* findOrAdd(XIXMLElement& parent, const char* tag)
{
    const OrvaneXML::XCXMLKey key = parent.MakeKey(tag);
    XIXMLElement* found = parent.FindElement(key);
    return found != nullptr ? found : parent.AddElement(key);
}

} // namespace

void CZEL::makeFreshTree()
{
    mFileNode = nullptr;
    mApplicationInstruction = nullptr;
    mFormatInstruction = nullptr;
    mTree = std::make_unique<OrvaneXML::XCXMLTree>();
    XIXMLElement* root = mTree->GetRoot();
    root->AddInstruction("xml", "version=\"1.0\" encoding=\"UTF-8\"");
    // A placeholder that every save replaces.
    mFormatInstruction =
        root->AddInstruction("Zel", "library=\"2.01\" file=\"5.0\"")->AsInstruction();
    mApplicationInstruction =
        root->AddInstruction("Application", applicationText().c_str())->AsInstruction();
    mFileNode = root->AddElement(root->MakeKey("Zel.File"));
    layOutFixedElements();
}

std::string CZEL::applicationText() const
{
    return "name=\"" + mApplicationName + "\" version=\"" + mApplicationVersion + "\"";
}

void CZEL::layOutFixedElements()
{
    XIXMLElement* file = fileNode();
    XIXMLElement* preview = file->FindElement(file->MakeKey("Preview.Image"));
    if (preview == nullptr) {
        preview = file->AddElement(file->MakeKey("Preview.Image"));
        file->InsertChild(preview->GetNode(), file->GetFirstNode());
    }
    preview->SetCData(new CImageProvider(this, mPreviewImage.get()));
    if (file->FindElement(file->MakeKey("Images")) == nullptr)
        insertBehind(preview, "Images");
    destroySections("Points");
    destroySections("Polygons");
    // The meshes of components stand with them; only a document without any has a mesh of its own.
    if (mDefinitions->size() > 0) {
        if (file->FindElement(file->MakeKey("InternalComponentDefinitions")) == nullptr)
            insertBehind(preview, "InternalComponentDefinitions");
        return;
    }
    XIXMLElement* points = insertBehind(preview, "Points");
    points->SetCData(new CPointsProvider(this));
    insertBehind(points, "Polygons")->SetCData(new CPolygonsProvider(this));
}

XIXMLElement* CZEL::insertBehind(XIXMLElement* before, const char* tag)
{
    XIXMLElement* file = fileNode();
    XIXMLData* next = before->GetNode()->GetNextNode();
    XIXMLElement* made = file->AddElement(file->MakeKey(tag));
    file->InsertChild(made->GetNode(), next);
    return made;
}

void CZEL::destroySections(const char* tag)
{
    XIXMLElement* file = fileNode();
    CZelXMLAdd::DestroySame(file->FindElement(file->MakeKey(tag)));
}

/// An empty section in front of those of that name.
XIXMLElement* CZEL::addSection(const char* tag)
{
    XIXMLElement* file = fileNode();
    const OrvaneXML::XCXMLKey key = file->MakeKey(tag);
    XIXMLElement* old = file->FindElement(key);
    XIXMLElement* made = file->AddElement(key);
    if (old != nullptr)
        file->InsertChild(made->GetNode(), old->GetNode());
    return made;
}

XIXMLElement* CZEL::renewSection(const char* tag)
{
    XIXMLElement* made = addSection(tag);
    CZelXMLAdd::DestroySame(made->GetNextSame());
    return made;
}

XIXMLElement* CZEL::fileNode()
{
    if (mFileNode == nullptr)
        OvThrow::Signal("mFileNode is NULL");
    return mFileNode;
}

const char* CZEL::getComment(std::int32_t index)
{
    return onTree<const char*>(*this, "IZelMgr::getComment", nullptr, [&] {
        XIXMLData* comment = findComment(*mTree->GetRoot(), index);
        return comment != nullptr ? comment->GetText() : nullptr;
    });
}

std::uint32_t CZEL::setComment(const char* text, std::int32_t index)
{
    constexpr std::uint32_t kFailure = 0xFFFFFFFF;
    return onTree<std::uint32_t>(*this, "IZelMgr::setComment", kFailure, [&] {
        XIXMLElement* root = mTree->GetRoot();
        XIXMLData* comment = findComment(*root, index);
        if (comment == nullptr) {
            if (text == nullptr)
                return kFailure;
            XIXMLData* file = fileNode()->GetNode();
            root->InsertChild(root->AddComment(text), file);
            return countCommentsBefore(*root, file) - 1;
        }
        if (text != nullptr)
            comment->SetText(text);
        else
            comment->Destroy();
        return static_cast<std::uint32_t>(index);
    });
}

const char* CZEL::getURL()
{
    return onTree<const char*>(*this, "IZelMgr::getURL", "", [&] {
        XIXMLElement* file = fileNode();
        XIXMLElement* url = file->FindElement(file->MakeKey("Save.Url"));
        return url != nullptr ? url->GetNode()->GetText() : "";
    });
}

void CZEL::setURL(const char* url)
{
    onTree<bool>(*this, "IZelMgr::setURL", false, [&] {
        XIXMLElement* element = findOrAdd(*fileNode(), "Save.Url");
        if (XIXMLData* text = element->GetFirstText())
            text->Destroy();
        if (url != nullptr && *url != '\0')
            element->AddText(url);
        return true;
    });
}

XIXMLElement* CZEL::getApplicationData(const char* tag)
{
    return onTree<XIXMLElement*>(*this, "IZelMgr::getApplicationData", nullptr, [&] {
        if (tag == nullptr || *tag == '\0')
            OvThrow::Signal("Invalid application tag");
        return findOrAdd(*findOrAdd(*fileNode(), "Application.Data"), tag);
    });
}

} // namespace OvZel
