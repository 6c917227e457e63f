#include "tests/support/slots.h"

#include <zel/IZelMgr.h>

#include <gtest/gtest.h>

#include <vector>

using namespace OvZel;
using ZelTest::expectOrder;
using ZelTest::slotOf;

TEST(Slots, IUnknown)
{
    expectOrder(0, {AT(IUnknown::QueryInterface), AT(IUnknown::AddRef), AT(IUnknown::Release)});
}

TEST(Slots, IZelBasicHasItsDestructorIn3And4)
{
    expectOrder(0, {AT(IZelBasic::QueryInterface), AT(IZelBasic::AddRef), AT(IZelBasic::Release)});
    expectOrder(5, {AT(IZelBasic::getObjectLink), AT(IZelBasic::getBasicData)});
}

TEST(Slots, IZelObjectLink)
{
    expectOrder(0, {AT(IZelObjectLink::getMgrRef), AT(IZelObjectLink::getOwnerLink),
                    AT(IZelObjectLink::getCOMWeakPtr), AT(IZelObjectLink::getSelfWeakPtr)});
}

TEST(Slots, IZelSharedPtrBase)
{
    expectOrder(0, {AT(IZelSharedPtrBase::addRef), AT(IZelSharedPtrBase::release),
                    AT(IZelSharedPtrBase::addWeakRef), AT(IZelSharedPtrBase::releaseWeakRef),
                    AT(IZelSharedPtrBase::detachRef), AT(IZelSharedPtrBase::resetPtr)});
}

TEST(Slots, IZelBasicData)
{
    using OrvaneXML::XIXMLElement;
    expectOrder(0, {AT(IZelBasicData::putInXML), AT(IZelBasicData::initWithXML),
                    AT(IZelBasicData::getId), AT(IZelBasicData::setId), AT(IZelBasicData::getName),
                    AT(IZelBasicData::setName), OTHER_AT(XIXMLElement*, IZelBasicData::getUserXML),
                    CONST_AT(const XIXMLElement*, IZelBasicData::getUserXML),
                    AT(IZelBasicData::getUserData), AT(IZelBasicData::setUserData),
                    AT(IZelBasicData::getUIValue), AT(IZelBasicData::setUIValue),
                    AT(IZelBasicData::getWarningTarget)});
}

TEST(Slots, IZelXML)
{
    expectOrder(0, {AT(IZelXML::putInXML), AT(IZelXML::initWithXML)});
}

TEST(Slots, IZelWarning)
{
    expectOrder(0, {AT(IZelWarning::warning), AT(IZelWarning::exceptionWarning),
                    AT(IZelWarning::unknownExceptionWarning)});
}

TEST(Slots, Managers)
{
    using TPoints = TZelObjectMgr<CZelPoint>;
    expectOrder(7, {AT(IZelObjectMgrBase::getObjectIID), AT(IZelObjectMgrBase::getNbObjects),
                    AT(IZelObjectMgrBase::removeObject), AT(IZelObjectMgrBase::moveObject),
                    AT(IZelObjectMgrBase::removeAllObjects), AT(IZelObjectMgrBase::reserve),
                    AT(TPoints::getZelObject), AT(TPoints::newZelObject)});
}

TEST(Slots, IZelMgrRef)
{
    expectOrder(0, {AT(IZelMgrRef::QueryInterface), AT(IZelMgrRef::AddRef), AT(IZelMgrRef::Release),
                    AT(IZelMgrRef::getMgr), AT(IZelMgrRef::getLanguage),
                    AT(IZelMgrRef::setLanguage), AT(IZelMgrRef::getMatrix),
                    AT(IZelMgrRef::setMatrix), AT(IZelMgrRef::transformNormal),
                    AT(IZelMgrRef::transformVector), AT(IZelMgrRef::transformPoint)});
}

TEST(Slots, IZelMgr)
{
    const std::vector<ZelTest::CSlot> slots = {
        AT(IZelMgr::setApplication),
        AT(IZelMgr::getApplicationName),
        AT(IZelMgr::getApplicationVersion),
        AT(IZelMgr::getFileInfo),
        AT(IZelMgr::getFileInfo2),
        AT(IZelMgr::getMgrEx),
        AT(IZelMgr::getLibraryVersion),
        AT(IZelMgr::read),
        AT(IZelMgr::write),
        AT(IZelMgr::getFileVersion),
        AT(IZelMgr::getCameras),
        AT(IZelMgr::getPolygons),
        AT(IZelMgr::getPoints),
        AT(IZelMgr::getProperties),
        AT(IZelMgr::getLights),
        AT(IZelMgr::getViewObjects),
        AT(IZelMgr::getParallelViews),
        AT(IZelMgr::getHeliodons),
        AT(IZelMgr::getLightsGroups),
        AT(IZelMgr::getPreviewImage),
        AT(IZelMgr::getImages),
        AT(IZelMgr::getObjectDefinition),
        AT(IZelMgr::getObjectInstances),
        AT(IZelMgr::getLanguage),
        AT(IZelMgr::setLanguage),
        AT(IZelMgr::getComment),
        AT(IZelMgr::setComment),
        AT(IZelMgr::getURL),
        AT(IZelMgr::setURL),
        AT(IZelMgr::getApplicationData),
        AT(IZelMgr::getScenarios),
        AT(IZelMgr::get3DPaths),
        AT(IZelMgr::getEnvironments),
        AT(IZelMgr::getGrounds),
        AT(IZelMgr::getLayers),
        AT(IZelMgr::getLayers2),
        AT(IZelMgr::getLayerInfo),
        AT(IZelMgr::getDefinitions),
        AT(IZelMgr::setExtStorageWriter),
        AT(IZelMgr::readCData),
        AT(IZelMgr::writeVersion),
        AT(IZelMgr::readMediaInfo),
        AT(IZelMgr::getPanoramas),
        AT(IZelMgr::getMatrix),
        AT(IZelMgr::setMatrix),
        AT(IZelMgr::getExternalDefinitions),
    };
    // 55 operations with the six of IZelBasic and the three obsolete ones.
    EXPECT_EQ(slots.size() + 6 + 3, 55u);
    expectOrder(7, slots);
}

TEST(Slots, IZelMgrEx)
{
    expectOrder(0, {AT(IZelMgrEx::getAnimations), AT(IZelMgrEx::getBillboards),
                    AT(IZelMgrEx::readShader), AT(IZelMgrEx::writeShader),
                    AT(IZelMgrEx::getWorkingViews), AT(IZelMgrEx::newShader),
                    AT(IZelMgrEx::removeShader), AT(IZelMgrEx::getRenderParameters),
                    AT(IZelMgrEx::getSaveVersion)});
}

TEST(Slots, IZelString)
{
    expectOrder(0, {AT(IZelString::copyFrom), AT(IZelString::getText),
                    AT(IZelString::getCurrentText), AT(IZelString::setText),
                    AT(IZelString::setCurrentText), AT(IZelString::getNbTexts),
                    AT(IZelString::getLanguageKey), AT(IZelString::clear)});
}

TEST(Slots, IZelTime)
{
    expectOrder(0, {AT(IZelTime::getMonth), AT(IZelTime::setMonth), AT(IZelTime::getDay),
                    AT(IZelTime::setDay), AT(IZelTime::getHour), AT(IZelTime::setHour),
                    AT(IZelTime::getMinute), AT(IZelTime::setMinute), AT(IZelTime::getYear),
                    AT(IZelTime::setYear)});
}

TEST(Slots, IZelPlace)
{
    expectOrder(0, {AT(IZelPlace::getLongitude), AT(IZelPlace::setLongitude),
                    AT(IZelPlace::getLatitude), AT(IZelPlace::setLatitude),
                    AT(IZelPlace::getTimeZone), AT(IZelPlace::setTimeZone),
                    AT(IZelPlace::getDaylight), AT(IZelPlace::setDaylight)});
}

TEST(Slots, IZelImage)
{
    expectOrder(7, {AT(IZelImage::getImage), AT(IZelImage::setImage), AT(IZelImage::getId),
                    AT(IZelImage::setId)});
}

TEST(Slots, IZelFileInfo)
{
    expectOrder(7, {AT(IZelFileInfo::getOrigin), AT(IZelFileInfo::setOrigin)});
}

TEST(Slots, ITable)
{
    expectOrder(7, {AT(ITable::getLength), AT(ITable::setLength), AT(ITable::getValue),
                    AT(ITable::setValue), AT(ITable::copyFrom)});
}

TEST(Slots, IZelPolygon)
{
    expectOrder(0, {AT(IZelPolygon::copy), AT(IZelPolygon::isSmooth), AT(IZelPolygon::setSmooth),
                    AT(IZelPolygon::getMaterial), AT(IZelPolygon::setMaterial),
                    AT(IZelPolygon::getVertices), AT(IZelPolygon::getHoles)});
}

TEST(Slots, IZelHole)
{
    using TVertices = TZelObjectMgr<CZelVertex>;
    using IZelHole = IZelPolygon::IZelHole;
    expectOrder(0, {CONST_AT(const TVertices*, IZelHole::getVertices),
                    OTHER_AT(TVertices*, IZelHole::getVertices)});
}

TEST(Slots, IZelQuad)
{
    expectOrder(0, {AT(IZelQuad::getTriangle), AT(IZelQuad::setTriangle), AT(IZelQuad::getQuadId),
                    AT(IZelQuad::setQuadId)});
    EXPECT_EQ(slotOf(&IZelQuad::getValue), -1) << "another name takes no slot";
    EXPECT_EQ(slotOf(&IZelQuad::setValue), -1);
}

TEST(Slots, Streams)
{
    expectOrder(0, {AT(IZelReadStream::read), AT(IZelReadStream::getPosition),
                    AT(IZelReadStream::setPosition)});
    expectOrder(0, {AT(IZelWriteStream::write)});
}

TEST(Slots, IZelFeedback)
{
    expectOrder(0, {AT(IZelFeedback::message), AT(IZelFeedback::progress)});
}

TEST(Slots, StoragesHaveTheDestructorsOfTheirBlocksFirst)
{
    using IReader = IZelExtStorageReader::IReader;
    using IWriter = IZelExtStorageWriter::IWriter;
    expectOrder(0, {AT(IZelExtStorageReader::createGeometryReader)});
    expectOrder(2, {AT(IReader::setNbPoints), AT(IReader::setPoint), AT(IReader::setNbPolygons),
                    AT(IReader::setPolygon)});
    expectOrder(0, {AT(IZelExtStorageWriter::createGeometryWriter)});
    expectOrder(2, {AT(IWriter::getNbPoints), AT(IWriter::getPoint), AT(IWriter::getNbPolygons),
                    AT(IWriter::getPolygon)});
}

TEST(Slots, RecordsHaveTheirSizes)
{
    EXPECT_EQ(sizeof(CZelUUID), 16u);
    EXPECT_EQ(sizeof(CZelPoint), 24u);
    EXPECT_EQ(sizeof(CZelVertex), 16u);
    EXPECT_EQ(sizeof(CZelVersion), 12u);
    EXPECT_EQ(sizeof(EVersionZEL), 4u);
}

TEST(SlotsDeathTest, BehindEachInterfaceOfADocumentStandThreeObsoleteOnes)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    IZelMgr* document = nullptr;
    IZelMgr::newZelMgr(&document, eVersionZel, nullptr);
    ASSERT_NE(document, nullptr);
    const struct {
        const char* name;
        void* object;
        std::ptrdiff_t first;
    } cases[] = {
        {"IZelMgr", document, 53},
        {"IZelMgrEx", document->getMgrEx(eVersionZel), 9},
        {"IZelMgrRef", document->getObjectLink()->getMgrRef(), 11},
        {"a list of objects", document->getImages(), 15},
        {"a list of records", document->getPoints(), 15},
        {"IZelImage", document->getPreviewImage(), 11},
        {"IZelFileInfo", document->getFileInfo(), 9},
        {"IZelPolygon", document->getPolygons()->newZelObject(-1), 7},
        {"IZelString", document->getObjectDefinition()->getName(), 8},
    };
    for (const auto& [name, object, first] : cases)
        for (std::ptrdiff_t slot = first; slot < first + 3; ++slot)
            EXPECT_EXIT(ZelTest::callSlot(object, slot), testing::ExitedWithCode(0),
                        "ZEL Library is obsolete\n"
                        "Please update ZEL Library and relaunch the application.")
                << name << ", slot " << slot;
    document->Release();
}
