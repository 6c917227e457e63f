#include "tools/CImportCount.h"

#include "tools/forEach.h"

#include <zel/IZelMgr.h>

#include <map>
#include <set>

namespace tool {

using namespace OvZel;

namespace {

using CProperties = TZelObjectMgr<IZelProperty>;
using CListOf = CProperties& (*)(IZelObjectInstance&);

// A component's instance has two lists of materials, its own and that of its class.
CProperties& ownList(IZelObjectInstance& instance)
{
    return *instance.getProperties();
}

CProperties& componentList(IZelObjectInstance& instance)
{
    return *instance.asInternalComponentInstance()->getProperties();
}

std::string prefixOf(IZelBasic& holder)
{
    return std::string(holder.getBasicData()->getName()) + "-";
}

// How many materials of the source have each key.
class CMaterialKeys {
public:
    void add(CProperties& list, const std::string& prefix)
    {
        forEach(list, [&](IZelProperty& property, std::int32_t) {
            ++mKeys[prefix + property.getBasicData()->getName()];
        });
    }
    std::int32_t count(const std::string& key) const
    {
        const auto found = mKeys.find(key);
        return found != mKeys.end() ? found->second : 0;
    }

private:
    std::map<std::string, std::int32_t> mKeys;
};

class CMaterialCount {
public:
    CMaterialCount(IZelMgr& destination, IZelMgr& source, const CSizeBefore& before)
        : mDestination(destination), mSource(source), mBefore(before)
    {
        forEach(*source.getDefinitions(), [&](IZelZelObjectDefinition& each, std::int32_t) {
            mNbComponents += each.getGeometryLevel() != kIgnoredLevel ? 1 : 0;
        });
    }

    CImportCount count()
    {
        countOfInstances(ownList);
        countOfInstances(componentList);
        countOfDefinitions();
        countOfGrounds();
        CImportCount result{"materials", 0, mOverwritten, mKept, {}, {}};
        result.ambiguous.assign(mAmbiguous.begin(), mAmbiguous.end());
        result.size = [size = mOverwritten + mKept] { return size; }; // none is ever added
        return result;
    }

private:
    template <class Operation>
    static void forEachComponent(IZelMgr& document, Operation operation)
    {
        forEach(*document.getObjectInstances(), [&](IZelObjectInstance& instance, std::int32_t i) {
            if (instance.asInternalComponentInstance())
                operation(instance, i);
        });
    }

    void countOfInstances(CListOf listOf)
    {
        const bool hasLayers = mSource.getLayers()->getNbObjects() > 0;
        const bool areNamesBare = !hasLayers || mNbComponents == 1;
        const auto prefix = [&](IZelObjectInstance& each) {
            return areNamesBare ? std::string() : prefixOf(each);
        };
        CMaterialKeys keys;
        if (mNbComponents > 0 && !hasLayers)
            keys.add(*mSource.getProperties(), "");
        if (mNbComponents > 0 && hasLayers)
            forEachComponent(mSource, [&](IZelObjectInstance& each, std::int32_t) {
                keys.add(listOf(each), prefix(each));
            });
        forEachComponent(mDestination, [&](IZelObjectInstance& each, std::int32_t i) {
            if (i < mBefore.instances)
                countList(listOf(each), prefix(each), keys);
        });
    }

    void countOfDefinitions()
    {
        CMaterialKeys keys;
        forEach(*mSource.getDefinitions(), [&](IZelZelObjectDefinition& each, std::int32_t) {
            keys.add(*each.getProperties(), prefixOf(each));
        });
        forEach(*mDestination.getDefinitions(), [&](IZelZelObjectDefinition& each, std::int32_t) {
            countList(*each.getProperties(), prefixOf(each), keys);
        });
    }

    // The first ground takes the material of the first, if it has the same name.
    void countOfGrounds()
    {
        const std::int32_t count = mBefore.grounds;
        const bool isPaired = count > 0 && mSource.getGrounds()->getNbObjects() > 0 &&
                              nameOfGround(mDestination) == nameOfGround(mSource);
        mOverwritten += isPaired ? 1 : 0;
        mKept += count - (isPaired ? 1 : 0);
    }

    static std::string nameOfGround(IZelMgr& document)
    {
        return document.getGrounds()->getZelObject(0)->getProperty()->getBasicData()->getName();
    }

    void countList(CProperties& list, const std::string& prefix, const CMaterialKeys& keys)
    {
        forEach(list, [&](IZelProperty& property, std::int32_t) {
            const std::string key = prefix + property.getBasicData()->getName();
            const std::int32_t number = keys.count(key);
            ++(number > 0 ? mOverwritten : mKept);
            if (number > 1)
                mAmbiguous.insert(key);
        });
    }

    IZelMgr& mDestination;
    IZelMgr& mSource;
    CSizeBefore mBefore;
    std::int32_t mNbComponents = 0;
    std::int32_t mOverwritten = 0;
    std::int32_t mKept = 0;
    std::set<std::string> mAmbiguous;
};

} // namespace

CImportCount countMaterials(IZelMgr& destination, IZelMgr& source, const CSizeBefore& before)
{
    return CMaterialCount(destination, source, before).count();
}

} // namespace tool
