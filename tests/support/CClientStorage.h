#pragma once

#include "tests/support/textOf.h"

#include <zel/IZelExtStorageReader.h>
#include <zel/IZelExtStorageWriter.h>
#include <zel/IZelPolygon.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace ZelTest {

/// A client that keeps the meshes of a document outside, and notes every call in one line each.
class CClientStorage : public OvZel::IZelExtStorageReader, public OvZel::IZelExtStorageWriter {
public:
    /// What goes wrong, in both directions.
    enum class EFault { None, NullObject, CreateThrows, Throws, ThrowsInt, False, NegativeCount };

    OvZel::IZelExtStorageReader::IReader* createGeometryReader(const OvZel::CZelUUID* id,
                                                               bool isLevelZero) override
    {
        note("reader " + textOf(*id) + (isLevelZero ? " zero" : ""));
        return create<CReader, OvZel::IZelExtStorageReader::IReader>();
    }

    OvZel::IZelExtStorageWriter::IWriter* createGeometryWriter(const OvZel::CZelUUID* id) override
    {
        note("writer " + textOf(*id));
        if (onWriter)
            onWriter();
        return create<CWriter, OvZel::IZelExtStorageWriter::IWriter>();
    }

    std::vector<std::string> calls;
    EFault fault = EFault::None;
    std::function<void()> onWriter; ///< when a writer is asked for
    int nbAlive = 0;                ///< readers and writers that the library hasn't deleted
    OvZel::CZelPoint point{1, 2, 3};

private:
    void note(const std::string& call) { calls.push_back(call); }

    template <class Made, class Result>
    Result* create()
    {
        if (fault == EFault::CreateThrows)
            throw std::runtime_error("no storage");
        return fault == EFault::NullObject ? nullptr : new Made(*this);
    }

    /// False, or an exception, as the fault says.
    bool stumble() const
    {
        if (fault == EFault::Throws)
            throw std::runtime_error("storage broke");
        if (fault == EFault::ThrowsInt)
            throw 1;
        return fault != EFault::False;
    }

    class CReader : public OvZel::IZelExtStorageReader::IReader {
    public:
        explicit CReader(CClientStorage& storage) : mStorage(storage) { ++mStorage.nbAlive; }
        ~CReader() override { --mStorage.nbAlive; }
        CReader(const CReader&) = delete;
        CReader& operator=(const CReader&) = delete;

        void setNbPoints(std::int32_t count) override
        {
            mStorage.note("points " + std::to_string(count));
        }
        bool setPoint(const OvZel::CZelPoint* given, std::int32_t index) override
        {
            mStorage.note("point " + std::to_string(index) + " " + std::to_string(given->x));
            return mStorage.stumble();
        }
        void setNbPolygons(std::int32_t count) override
        {
            mStorage.note("polygons " + std::to_string(count));
        }
        bool setPolygon(OvZel::IZelPolygon* polygon, std::int32_t index) override
        {
            mStorage.note("polygon " + std::to_string(index) + " " +
                          std::to_string(polygon->getMaterial()));
            return mStorage.stumble();
        }

    private:
        CClientStorage& mStorage;
    };

    /// One point and one triangle.
    class CWriter : public OvZel::IZelExtStorageWriter::IWriter {
    public:
        explicit CWriter(CClientStorage& storage) : mStorage(storage) { ++mStorage.nbAlive; }
        ~CWriter() override { --mStorage.nbAlive; }
        CWriter(const CWriter&) = delete;
        CWriter& operator=(const CWriter&) = delete;

        std::int32_t getNbPoints() override { return count(); }
        bool getPoint(OvZel::CZelPoint* asked, std::int32_t) override
        {
            *asked = mStorage.point;
            return mStorage.stumble();
        }
        std::int32_t getNbPolygons() override { return count(); }
        bool getPolygon(OvZel::IZelPolygon* polygon, std::int32_t) override
        {
            polygon->setMaterial(9);
            for (int i = 0; i < 3; ++i)
                polygon->getVertices()->newZelObject(-1)->pointIndex = i;
            return mStorage.stumble();
        }

    private:
        std::int32_t count() const { return mStorage.fault == EFault::NegativeCount ? -5 : 1; }

        CClientStorage& mStorage;
    };
};

} // namespace ZelTest
