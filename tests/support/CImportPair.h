#pragma once

#include "tests/support/CClientDocument.h"

#include <zel/IZelMgr.h>

#include <string>
#include <vector>

namespace ZelTest {

/// An identifier that is easy to tell from others.
inline OvZel::CZelUUID idOfNumber(int number)
{
    OvZel::CZelUUID id;
    id.bytes[0] = 0xEE;
    id.bytes[14] = static_cast<std::uint8_t>(number >> 8);
    id.bytes[15] = static_cast<std::uint8_t>(number);
    return id;
}

inline std::string nameOf(OvZel::IZelBasic& object)
{
    return object.getBasicData()->getName();
}

inline OvZel::CZelUUID idOf(OvZel::IZelBasic& object)
{
    return *object.getBasicData()->getId();
}

/// A new object behind the last of the list.
template <class I>
I& add(OvZel::TZelObjectMgr<I>* list)
{
    return *list->newZelObject(-1);
}

template <class I>
I& add(OvZel::TZelObjectMgr<I>* list, const char* name)
{
    I& object = add(list);
    object.getBasicData()->setName(name);
    return object;
}

template <class I>
I& add(OvZel::TZelObjectMgr<I>* list, const char* name, const OvZel::CZelUUID& id)
{
    I& object = add(list, name);
    object.getBasicData()->setId(&id);
    return object;
}

inline void addId(OvZel::TZelObjectMgr<OvZel::CZelUUID>* list, const OvZel::CZelUUID& id)
{
    *list->newZelObject(-1) = id;
}

inline std::vector<OvZel::CZelUUID> idsOf(OvZel::TZelObjectMgr<OvZel::CZelUUID>* list)
{
    std::vector<OvZel::CZelUUID> ids;
    for (std::int32_t i = 0; i < list->getNbObjects(); ++i)
        ids.push_back(*list->getZelObject(i));
    return ids;
}

template <class I>
std::vector<std::string> namesOf(OvZel::TZelObjectMgr<I>* list)
{
    std::vector<std::string> names;
    for (std::int32_t i = 0; i < list->getNbObjects(); ++i)
        names.push_back(nameOf(*list->getZelObject(i)));
    return names;
}

/// An instance of an object from a file, on that layer.
inline OvZel::IZelObjectInstance& addInstance(OvZel::IZelMgr& document, const char* name,
                                              const OvZel::CZelUUID& id,
                                              const OvZel::CZelUUID& layerId,
                                              const char* objectClass = "ZelObject")
{
    OvZel::IZelObjectInstance& instance = add(document.getObjectInstances(), name, id);
    instance.setClass(objectClass);
    instance.setLayerId(layerId);
    return instance;
}

/// An internal component of that level.
inline OvZel::IZelZelObjectDefinition& addComponent(OvZel::IZelMgr& document, const char* name,
                                                    std::int32_t level)
{
    OvZel::IZelZelObjectDefinition& definition = add(document.getDefinitions(), name);
    definition.setGeometryLevel(level);
    return definition;
}

/// A view that shows no sun, so that it brings none along.
template <class I>
I& addView(OvZel::TZelObjectMgr<I>* list, const char* name)
{
    I& view = add(list, name);
    view.getViewInfo()->setHeliodonName("");
    return view;
}

/// Made if there is none.
inline OvZel::IZelScenario& firstScenario(OvZel::IZelMgr& document)
{
    if (document.getScenarios()->getNbObjects() == 0)
        document.getScenarios()->newZelObject(0);
    return *document.getScenarios()->getZelObject(0);
}

/// A document without the sun that a new one has.
struct CSunlessDocument : CClientDocument {
    CSunlessDocument() { get()->getHeliodons()->removeAllObjects(); }
};

/// Two documents, one to be imported into the other.
struct CImportPair {
    void import(std::int32_t flags)
    {
        OvZel::IZelMgr::doImportReference(destination.get(), source.get(), flags);
    }
    std::vector<std::string> takeMessages()
    {
        std::vector<std::string> messages = destination.takeMessages();
        for (const std::string& message : source.takeMessages())
            messages.push_back(message);
        return messages;
    }

    CSunlessDocument destination;
    CSunlessDocument source;
};

} // namespace ZelTest
