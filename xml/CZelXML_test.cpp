#include "xml/TZelXMLCOMObjLink.h"
#include "xml/TZelXMLCOMObjLinkRef.h"
#include "xml/TZelXMLFrontierObjLink.h"
#include "xml/TZelXMLFrontierObjLinkRef.h"

#include "tests/support/CTestBlockHost.h"
#include "tests/support/CTestElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/vtable.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

#include <zel/IZelXML.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace OvZel;
using OrvaneXML::XIXMLElement;
using ZelTest::CTestBlockHost;
using ZelTest::CTestElement;
using ZelTest::messageOf;
using ZelTest::slotOf;

namespace {

class IThing : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"00000000000000000000000000000001"};

protected:
    ~IThing() override = default;
};

class IPart : public IZelXML {
public:
    virtual int getNumber() const = 0;

protected:
    ~IPart() = default;
};

enum class EFault { None, Standard, Other };

/// What the object of one of the families does in the frame.
struct CBody {
    XIXMLElement* add(CZelXMLIO& io, XIXMLElement* element)
    {
        seen = {io.getMgrRef(), io.getUUID(), io.workingList().empty()};
        raise();
        return CZelXMLAdd(element).AddInteger("Thing", 5);
    }
    bool get(CZelXMLIO& io, XIXMLElement* element)
    {
        seen = {io.getMgrRef(), io.getUUID(), io.workingList().empty()};
        raise();
        return CZelXMLGet(element).GetInteger("Thing") == 5;
    }
    void raise() const
    {
        if (fault == EFault::Standard)
            throw std::runtime_error("text");
        if (fault == EFault::Other)
            throw 1;
    }

    struct {
        IZelMgrRef* mgrRef = nullptr;
        bool getUUID = false;
        bool emptyList = false;
    } seen;
    EFault fault = EFault::None;
};

template <class Base>
class TObject : public Base {
public:
    template <class Owner>
    explicit TObject(Owner* owner) : Base(owner)
    {
    }
    XIXMLElement* addXML(CZelXMLIO& io, XIXMLElement* element) override
    {
        return body.add(io, element);
    }
    bool getXML(CZelXMLIO& io, XIXMLElement* element) override { return body.get(io, element); }

    CBody body;
};

template <class Base>
class TPart : public TObject<Base> {
public:
    using TObject<Base>::TObject;
    int getNumber() const override { return 7; }
};

using CThingRef = TObject<TZelXMLCOMObjLinkRef<IThing>>;
using CThing = TObject<TZelXMLCOMObjLink<IThing>>;
using CPart = TPart<TZelXMLFrontierObjLink<IPart>>;
using CPartRef = TPart<TZelXMLFrontierObjLinkRef<IPart>>;

using CMessages = std::vector<std::string>;

/// The rules of the frame, which are the same for all families.
template <class Object>
void checkFrame(Object& object, CTestBlockHost& host, const std::string& family)
{
    CTestElement document;
    const XIXMLElement* const written = object.putInXML(document.element());
    EXPECT_EQ(written, document.element()->GetFirstElement());
    EXPECT_EQ(document.text(), "<E><Thing>5</Thing></E>");
    EXPECT_EQ(object.body.seen.mgrRef, &host.blockMgrRef());
    EXPECT_FALSE(object.body.seen.getUUID);
    EXPECT_TRUE(object.body.seen.emptyList);

    EXPECT_TRUE(object.initWithXML(document.element(), true));
    EXPECT_TRUE(object.body.seen.getUUID);
    EXPECT_TRUE(object.initWithXML(document.element(), false));
    EXPECT_FALSE(object.body.seen.getUUID);
    EXPECT_EQ(host.messages, CMessages{});

    EXPECT_EQ(object.putInXML(nullptr), nullptr);
    EXPECT_FALSE(object.initWithXML(nullptr, true));
    object.body.fault = EFault::Standard;
    EXPECT_EQ(object.putInXML(document.element()), nullptr);
    EXPECT_FALSE(object.initWithXML(document.element(), true));
    object.body.fault = EFault::Other;
    EXPECT_EQ(object.putInXML(document.element()), nullptr);
    EXPECT_FALSE(object.initWithXML(document.element(), true));
    EXPECT_EQ(host.messages,
              (CMessages{"Exception in " + family + "::putInXML : Unknown exception",
                         "Exception in " + family + "::initWithXML : Unknown exception",
                         "Exception in " + family + "::putInXML : text",
                         "Exception in " + family + "::initWithXML : text",
                         "Unknown exception in " + family + "::putInXML",
                         "Unknown exception in " + family + "::initWithXML"}));
}

/// Nobody to warn and no reference object: the call fails in silence.
template <class Object>
void checkWithoutDocument(Object& object)
{
    CTestElement document;
    EXPECT_EQ(object.putInXML(nullptr), nullptr);
    EXPECT_EQ(object.putInXML(document.element()), nullptr);
    EXPECT_FALSE(object.initWithXML(document.element(), true));
    EXPECT_EQ(document.text(), "<E/>");
}

/// Checks an object as a part of an owner that a reference object stands for.
template <class Object>
void checkLinks(Object& object, CTestBlockHost& host)
{
    EXPECT_EQ(object.getMgrRef(), &host.blockMgrRef());
    EXPECT_EQ(object.getOwnerLink(), &host.blockMgrRef());
}

} // namespace

TEST(ZelXML, CountedObjectsWithACountedOwner)
{
    CTestBlockHost host;
    const TZelComPtr<CThingRef> object(new CThingRef(&host.blockMgrRef()));
    checkLinks(*object, host);
    checkFrame(*object, host, "CZelXMLBasicData");
    const TZelComPtr<CThingRef> alone(new CThingRef(static_cast<IZelObjectLinkRef*>(nullptr)));
    checkWithoutDocument(*alone);
}

TEST(ZelXML, CountedObjectsWithAPlainOwner)
{
    CTestBlockHost host;
    const TZelComPtr<CThing> object(new CThing(&host.blockMgrRef()));
    checkLinks(*object, host);
    checkFrame(*object, host, "CZelXMLBasicData");
    EXPECT_EQ(object->getCOMWeakPtr(), object->getSelfWeakPtr());
    EXPECT_EQ(object->getWarningTarget(), &host.blockMgrRef());
    const TZelComPtr<CThing> alone(new CThing(static_cast<IZelObjectLink*>(nullptr)));
    EXPECT_EQ(alone->getWarningTarget(), nullptr);
    checkWithoutDocument(*alone);
}

TEST(ZelXML, PartsWithAPlainOwner)
{
    CTestBlockHost host;
    CPart object(&host.blockMgrRef());
    checkLinks(object, host);
    checkFrame(object, host, "CZelXML");
    CPart alone(static_cast<IZelObjectLink*>(nullptr));
    checkWithoutDocument(alone);
}

TEST(ZelXML, PartsWithACountedOwner)
{
    CTestBlockHost host;
    CPartRef object(&host.blockMgrRef());
    checkLinks(object, host);
    checkFrame(object, host, "CZelXMLRef");
}

TEST(ZelXML, APartWithoutItsCountedOwnerRaises)
{
    CPartRef alone(static_cast<IZelObjectLinkRef*>(nullptr));
    CTestElement document;
    const char* const message = "TZelComPtr::operator->() - Dereferencing NULL";
    EXPECT_EQ(messageOf([&] { alone.putInXML(document.element()); }), message);
    EXPECT_EQ(messageOf([&] { alone.putInXML(nullptr); }), message);
    EXPECT_EQ(messageOf([&] { alone.initWithXML(document.element(), false); }), message);
    EXPECT_EQ(alone.getMgrRef(), nullptr);
}

TEST(ZelXML, AMissingChildIsToldWithItsText)
{
    CTestBlockHost host;
    CPart object(&host.blockMgrRef());
    CTestElement document;
    EXPECT_FALSE(object.initWithXML(document.element(), false));
    EXPECT_EQ(host.messages, CMessages{"Exception in CZelXML::initWithXML : "
                                       "CZelXMLGet::GetElement - NULL ptr for tag Thing"});
}

TEST(ZelXML, TheInterfaceBeginsWithThePair)
{
    EXPECT_EQ(slotOf(&IPart::putInXML), 0);
    EXPECT_EQ(slotOf(&IPart::initWithXML), 1);
    EXPECT_EQ(slotOf(&IPart::getNumber), 2);
    EXPECT_EQ(slotOf(&TZelFrontier<IPart>::obsolete1), 3);
    CTestBlockHost host;
    CPart object(&host.blockMgrRef());
    IPart& part = object;
    EXPECT_FALSE(part.initWithXML(nullptr, false));
    EXPECT_EQ(host.messages.size(), 1U);
}

TEST(ZelXML, BasicDataHasTwoOperationsBehindItsThirteen)
{
    EXPECT_EQ(slotOf(&CZelXMLBasicData::addXML), 13);
    EXPECT_EQ(slotOf(&CZelXMLBasicData::getXML), 14);
}

TEST(ZelXMLIO, NeedsAReferenceObject)
{
    EXPECT_EQ(messageOf([] { CZelXMLIO(nullptr, true); }), "");
}
