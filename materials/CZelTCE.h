#pragma once

#include "core/CZelString.h"
#include "materials/CShaderId.h"
#include "materials/TTCENode.h"

#include <zel/IRootNode.h>

#include <string>

namespace OvZel {

/// The root of a material.
class CZelTCE : public TTCENode<IRootNode>, public CShaderId {
public:
    /// The link of the property that owns the tree; null makes a tree without a document.
    explicit CZelTCE(IZelObjectLink* property);

    /// The property's last call: from here on the tree belongs to no document.
    void forgetProperty() { mProperty = nullptr; }

    IZelObjectLink* getOwnerLink() const override { return mProperty; }

    std::uint32_t getUIValue() const override { return mRootUIValue; }
    void setUIValue(std::uint32_t value) override { mRootUIValue = value; }
    eNodeType getNodeType() const override { return eRootNode; }
    IRootNode* asRootNode() override { return this; }

    void reportWarning(const char* text) override;

    const char* getUrl() const override { return mUrl.c_str(); }
    void setUrl(const char* url) override;
    const IZelString* getName() const override { return &mName; }
    IZelString* getName() override { return &mName; }
    const ITCENode* getRootNode() const override { return this; }
    ITCENode* getRootNode() override { return this; }
    ITCENode* createNode(std::int32_t type) override;
    const char* getEditorName() const override { return mEditorName.c_str(); }
    void setEditorName(const char* name) override { mEditorName = name != nullptr ? name : ""; }

    const CZelUUID& getShaderId() const { return CShaderId::getId(); }
    void setShaderId(const CZelUUID& id) { CShaderId::setId(id); }

    // A root has no file form of its own: its values are in the element of its property.
    void addTo(CZelXMLIO&, const CZelXMLAdd&) const override {}
    void getFrom(CZelXMLIO&, const CZelXMLGet&) override {}

private:
    IZelObjectLink* mProperty;
    std::string mUrl;
    CZelString mName;
    std::uint32_t mRootUIValue = 0;
    std::string mEditorName;
};

} // namespace OvZel
