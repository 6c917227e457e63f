#include "tools/diffDocuments.h"

#include "tools/CScratch.h"
#include "tools/meshElement.h"
#include "tools/pairUp.h"

namespace tool {

using EKind = CDifference::EKind;

namespace {

class CDocumentDiff {
public:
    CDocumentDiff(OvZel::IZelMgr& a, OvZel::IZelMgr& b, double tolerance)
        : mScratchA(a), mScratchB(b), mTolerance(tolerance)
    {
    }

    void compareLists(const CObjectList& a, const CObjectList& b)
    {
        for (const CPartners& each : pairUp(identities(a), identities(b), true))
            if (each.a == CPartners::kNone)
                tell(EKind::eAdded, b, each.b, {});
            else if (each.b == CPartners::kNone)
                tell(EKind::eRemoved, a, each.a, {});
            else
                compareObjects(a, b, each);
    }

    std::vector<CDifference> take() { return std::move(mDifferences); }

private:
    static std::vector<CIdentity> identities(const CObjectList& list)
    {
        std::vector<CIdentity> all;
        for (const CListedObject& object : list.objects)
            all.push_back({list.name, object.id, object.name});
        return all;
    }

    void tell(EKind kind, const CObjectList& list, std::size_t index, CFieldDifference field)
    {
        const CListedObject& object = list.objects[index];
        mDifferences.push_back({kind, list.name, object.id, object.name, index, std::move(field)});
    }

    void compareObjects(const CObjectList& a, const CObjectList& b, const CPartners& place)
    {
        if (place.isMoved)
            tell(EKind::eMoved, a, place.a,
                 {true, "", std::to_string(place.a), std::to_string(place.b)});
        const CListedObject& first = a.objects[place.a];
        const CListedObject& second = b.objects[place.b];
        CElementDiff fields(mTolerance, [&](const CFieldDifference& field) {
            tell(kindOf(field), a, place.a, field);
        });
        fields.compare(mScratchA.write(a, first), mScratchB.write(b, second));
        if (!first.mesh.points)
            return;
        for (CMeshDifference& each : meshDifferences(first.mesh, second.mesh, mTolerance))
            tell(EKind::eChanged, a, place.a, {false, each.path, each.a, each.b});
    }

    static EKind kindOf(const CFieldDifference& field)
    {
        if (field.isMoved)
            return EKind::eMoved;
        if (field.a && field.b)
            return EKind::eChanged;
        return field.a ? EKind::eRemoved : EKind::eAdded;
    }

    CScratch mScratchA;
    CScratch mScratchB;
    double mTolerance;
    std::vector<CDifference> mDifferences;
};

} // namespace

std::vector<CDifference> diffDocuments(OvZel::IZelMgr& a, OvZel::IZelMgr& b, double tolerance)
{
    CDocumentDiff diff(a, b, tolerance);
    const std::vector<CObjectList> first = objectLists(a);
    const std::vector<CObjectList> second = objectLists(b);
    for (std::size_t i = 0; i < first.size(); ++i)
        diff.compareLists(first[i], second[i]);
    return diff.take();
}

} // namespace tool
