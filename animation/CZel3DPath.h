#pragma once

#include "animation/CZelBezierPoint.h"
#include "core/TObject2Mgr.h"
#include "core/TZelComPtr.h"
#include "xml/TZelXMLCOMObjLinkRef.h"

#include <zel/IZel3DPath.h>

namespace OvZel {

/// A Bezier curve; the element "Path.3D".
class CZel3DPath : public TZelXMLCOMObjLinkRef<IZel3DPath> {
public:
    using CPoints = TObject2Mgr<CZelBezierPoint, IZelBezierPoint>;

    explicit CZel3DPath(IZelObjectLinkRef* owner)
        : TZelCOMObjLinkRef(owner), mPoints(new CPoints(this))
    {
    }

    bool isClosed() const override { return mClosed; }
    void setClosed(bool closed) override { mClosed = closed; }
    const CPoints* getBezierPoints() const override { return mPoints.get(); }
    CPoints* getBezierPoints() override { return mPoints.get(); }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    /// Takes the identifier of the file whatever the frame says: interpolated values find their
    /// path by it.
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mClosed = false;
    TZelComPtr<CPoints> mPoints;
};

} // namespace OvZel
