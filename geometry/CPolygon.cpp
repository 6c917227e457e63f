#include "geometry/CPolygon.h"

#include "geometry/CPolygonView.h"

#include <new>

namespace OvZel {

namespace {

/// Works with the managers of any implementation.
bool appendRecords(CVertexMgr& to, TZelObjectMgr<CZelVertex>* from)
{
    const std::int32_t count = from != nullptr ? from->getNbObjects() : 0;
    for (std::int32_t i = 0; i < count; ++i) {
        const CZelVertex* source = from->getZelObject(i);
        CZelVertex* record = source != nullptr ? to.append() : nullptr;
        if (record == nullptr)
            return false;
        *record = *source;
    }
    return true;
}

} // namespace

CPolygon::~CPolygon()
{
    vertices().loseOwner();
    end();
}

bool CPolygon::copy(IZelPolygon* other)
{
    if (other == this)
        return true;
    if (other == nullptr)
        return false;
    if (const auto* known = dynamic_cast<const CPolygon*>(other))
        return copyFrom(*known);
    clear();
    mSmooth = other->isSmooth();
    mMaterial = other->getMaterial();
    try {
        return copyLoops(*other);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

bool CPolygon::copyFrom(const CPolygon& other)
{
    return &other == this || copyFrom(CPolygonView(other));
}

bool CPolygon::copyFrom(const CPolygonView& other)
{
    clear();
    mSmooth = other.isSmooth();
    mMaterial = other.getMaterial();
    try {
        return copyLoops(other);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

bool CPolygon::copyLoops(const CPolygonView& other)
{
    if (!vertices().assign(other.loop(0)))
        return false;
    const std::int32_t count = other.nbLoops() - 1;
    if (count > 0 && !holes().reserve(count))
        return false;
    for (std::int32_t i = 0; i < count; ++i) {
        CLoop* loop = holes().append();
        if (loop == nullptr || !loop->vertices().assign(other.loop(i + 1)))
            return false;
    }
    return true;
}

bool CPolygon::copyLoops(IZelPolygon& other)
{
    if (!appendRecords(vertices().manager(), other.getVertices()))
        return false;
    TZelObjectMgr<IZelHole>* from = other.getHoles();
    const std::int32_t count = from != nullptr ? from->getNbObjects() : 0;
    for (std::int32_t i = 0; i < count; ++i) {
        IZelHole* source = from->getZelObject(i);
        CLoop* loop = source != nullptr ? holes().append() : nullptr;
        if (loop == nullptr || !appendRecords(loop->vertices().manager(), source->getVertices()))
            return false;
    }
    return true;
}

void CPolygon::clear()
{
    mSmooth = false;
    mMaterial = 0;
    vertices().clear();
    while (nbHoles() > 0)
        holesIfAny()->removeObject(-1);
}

CPolygon::CHoles& CPolygon::holes()
{
    TZelComPtr<CHoles>& slot = holesSlot();
    if (!slot)
        slot = TZelComPtr<CHoles>(new CHoles(this));
    return *slot;
}

} // namespace OvZel
