#include "objects/CClassData.h"

#include "objects/findOrAdd.h"
#include "xml/tree/XCXMLTree.h"

using OrvaneXML::XCXMLTree;
using OrvaneXML::XIXMLElement;

namespace OvZel {

CClassData::CClassData(const char* tag) : mTag(tag) {}

CClassData::~CClassData() = default;

XIXMLElement* CClassData::elementOf(XCXMLTree& tree) const
{
    return findOrAdd(*tree.GetRoot(), mTag);
}

void CClassData::unpackInto(XCXMLTree& tree) const
{
    if (!mPacked.isEmpty())
        mPacked.unpackInto(*tree.GetRoot());
}

CClassData::CTreePtr CClassData::unpacked() const
{
    auto tree = std::make_unique<XCXMLTree>();
    unpackInto(*tree);
    return tree;
}

void CClassData::show() const
{
    if (!mTree) {
        mTree = edited() ? std::move(*mEditTree) : unpacked();
        mPacked = {};
    }
}

XIXMLElement* CClassData::element() const
{
    show();
    return elementOf(*mTree);
}

XCXMLTree* CClassData::edited() const
{
    return mEditTree ? mEditTree->get() : nullptr;
}

XCXMLTree* CClassData::tree() const
{
    return mTree ? mTree.get() : edited();
}

void CClassData::read(const CWork& work) const
{
    work(elementOf(tree() ? *tree() : *unpacked()));
}

void CClassData::edit(const CWork& work)
{
    CTreePtr own;
    edit(work, own);
}

void CClassData::edit(const CWork& work, CTreePtr& workingTree)
{
    if (tree())
        return work(elementOf(*tree()));
    if (!workingTree)
        workingTree = std::make_unique<XCXMLTree>();
    OrvaneXML::XIXMLElement* const root = workingTree->GetRoot();
    if (root->GetFirstNode()) // the edit of another one runs around this one
        return edit(work);
    unpackInto(*workingTree);
    mEditTree = &workingTree;
    const auto finish = [&] {
        mEditTree = nullptr;
        if (mTree)
            return;
        if (mPacked.pack(*elementOf(*workingTree)))
            return root->GetNode()->Destroy(); // what is in it; a root itself stays
        mTree = std::move(workingTree);
        mPacked = {};
    };
    try {
        work(elementOf(*workingTree));
    } catch (...) {
        finish();
        throw;
    }
    finish();
}

const char* CClassData::getText(const char* tag) const
{
    bool isThere = false;
    read([&](const XIXMLElement* data) { isThere = data->FindElement(data->MakeKey(tag)); });
    // Only a tree can keep the text where it is.
    return isThere ? findOrAdd(*element(), tag)->GetNode()->GetText() : "";
}

void CClassData::setText(const char* tag, const char* text)
{
    edit([&](XIXMLElement* data) { findOrAdd(*data, tag)->GetNode()->SetText(text); });
}

void CClassData::copyFrom(const XIXMLElement& source)
{
    if (mPacked.pack(source)) {
        mTree.reset();
    } else {
        // A new tree rather than a second element beside the old one: what a destroyed element took
        // from its tree stays there.
        auto tree = std::make_unique<XCXMLTree>();
        source.GetNode()->CloneInto(tree->GetRoot());
        mTree = std::move(tree);
        mPacked = {};
    }
}

void CClassData::copyInto(XIXMLElement& parent) const
{
    if (tree())
        elementOf(*tree())->GetNode()->CloneInto(&parent);
    else if (!mPacked.isEmpty())
        mPacked.unpackInto(parent);
    else
        parent.AddElement(parent.MakeKey(mTag));
}

} // namespace OvZel
