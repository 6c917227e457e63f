#pragma once

#include "core/TZelMember.h"
#include "environment/CZelBackgroundPicture.h"
#include "environment/CZelClouds.h"
#include "environment/CZelFog.h"
#include "environment/CZelForeground.h"
#include "xml/TZelXMLFrontierObjLinkRef.h"

#include <zel/IZelEnvironment.h>

#include <string>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// What surrounds the scene; the element "Environment".
class CZelEnvironment : public TZelXMLFrontierObjLinkRef<IZelEnvironment> {
public:
    explicit CZelEnvironment(IZelObjectLinkRef* owner);

    const CZelUUID& getId() const override { return mId; }
    void setId(const CZelUUID& id) override { mId = id; }
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name != nullptr ? name : ""; }
    const IZelClouds* getClouds() const override { return &mClouds; }
    IZelClouds* getClouds() override { return &mClouds; }
    const IZelFog* getFog() const override { return &mFog; }
    IZelFog* getFog() override { return &mFog; }
    const IZelBackgroundPicture* getBackgroundPicture() const override
    {
        return &mBackgroundPicture;
    }
    IZelBackgroundPicture* getBackgroundPicture() override { return &mBackgroundPicture; }
    const IZelForeground* getForeground() const override { return &mForeground; }
    IZelForeground* getForeground() override { return &mForeground; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    /// Takes the identifier of the file whatever the frame says: views find their environment by
    /// it.
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    CZelUUID mId;
    std::string mName = "Environment 1";
    TZelMember<CZelFog> mFog;
    TZelMember<CZelClouds> mClouds;
    TZelMember<CZelBackgroundPicture> mBackgroundPicture;
    TZelMember<CZelForeground> mForeground;
};

} // namespace OvZel
