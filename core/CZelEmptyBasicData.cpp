#include "core/CZelEmptyBasicData.h"

#include "core/CZelMgrRef.h"

namespace OvZel {

void CZelEmptyBasicData::warn(const char* text) const
{
    if (CZelMgrRef* target = getWarningTarget())
        target->warning(text);
}

OrvaneXML::XIXMLElement* CZelEmptyBasicData::putInXML(OrvaneXML::XIXMLElement*)
{
    warn("CZelEmptyBasicData::putInXML - This class doesn't implement XML");
    return nullptr;
}

bool CZelEmptyBasicData::initWithXML(OrvaneXML::XIXMLElement*, bool)
{
    warn("CZelEmptyBasicData::initWithXML - This class doesn't implement XML");
    return false;
}

const CZelUUID* CZelEmptyBasicData::getId() const
{
    static constexpr CZelUUID kNull;
    warn("CZelEmptyBasicData::getId - This class doesn't implement id");
    return &kNull;
}

void CZelEmptyBasicData::setId(const CZelUUID*)
{
    warn("CZelEmptyBasicData::getName - This class doesn't implement id"); // (sic)
}

const char* CZelEmptyBasicData::getName() const
{
    warn("CZelEmptyBasicData::getName - This class doesn't implement name");
    return "";
}

void CZelEmptyBasicData::setName(const char*)
{
    warn("CZelEmptyBasicData::setName - This class doesn't implement name");
}

OrvaneXML::XIXMLElement* CZelEmptyBasicData::getUserXML()
{
    warn("CZelEmptyBasicData::getUserXML - This class doesn't implement user XML");
    return nullptr;
}

const OrvaneXML::XIXMLElement* CZelEmptyBasicData::getUserXML() const
{
    warn("CZelEmptyBasicData::getUserXML - This class doesn't implement user XML");
    return nullptr;
}

IUnknown* CZelEmptyBasicData::getUserData(const CZelUUID*) const
{
    warn("CZelEmptyBasicData::getUserData - This class doesn't implement user data");
    return nullptr;
}

void CZelEmptyBasicData::setUserData(const CZelUUID*, IUnknown*)
{
    warn("CZelEmptyBasicData::setUserData - This class doesn't implement user data");
}

std::uint32_t CZelEmptyBasicData::getUIValue() const
{
    warn("CZelEmptyBasicData::getUIValue - This class doesn't implement UI value");
    return 0;
}

void CZelEmptyBasicData::setUIValue(std::uint32_t)
{
    warn("CZelEmptyBasicData::setUIValue - This class doesn't implement UI value");
}

} // namespace OvZel
