#pragma once

#include "examples/shared/CConsole.h"
#include "examples/shared/CFileReader.h"
#include "examples/shared/CFileWriter.h"

#include <zel/IZelMgr.h>

#include <stdexcept>
#include <string>

namespace example {

/// Holds one document; failures are exceptions.
class CDocument {
public:
    CDocument()
    {
        OvZel::IZelMgr::newZelMgr(&mMgr, OvZel::eVersionZel, &mConsole);
        if (!mMgr)
            throw std::runtime_error("no document");
    }
    ~CDocument() { mMgr->Release(); }
    CDocument(const CDocument&) = delete;
    CDocument& operator=(const CDocument&) = delete;

    OvZel::IZelMgr* operator->() const { return mMgr; }
    OvZel::IZelMgr& operator*() const { return *mMgr; }

    void load(const std::string& path)
    {
        CFileReader file(path.c_str());
        if (!file.isOpen() || !mMgr->read(&file, nullptr))
            throw std::runtime_error(path + ": not readable");
    }
    void save(const std::string& path)
    {
        CFileWriter file(path.c_str());
        const bool isWritten = mMgr->write(&file, nullptr);
        if (!file.close() || !isWritten)
            throw std::runtime_error(path + ": not saved");
    }

private:
    CConsole mConsole; // outlives the document
    OvZel::IZelMgr* mMgr = nullptr;
};

/// A new object behind the last of a list.
template <class T>
T& add(OvZel::TZelObjectMgr<T>* list)
{
    T* object = list->newZelObject(-1);
    if (!object)
        throw std::runtime_error("no new object");
    return *object;
}

/// The same with a name.
template <class T>
T& add(OvZel::TZelObjectMgr<T>* list, const std::string& name)
{
    T& object = add(list);
    object.getBasicData()->setName(name.c_str());
    return object;
}

inline const char* nameOf(OvZel::IZelBasic& object)
{
    return object.getBasicData()->getName();
}

inline const OvZel::CZelUUID& idOf(OvZel::IZelBasic& object)
{
    return *object.getBasicData()->getId();
}

} // namespace example
