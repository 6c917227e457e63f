#pragma once

#include "render/CAnimRenderingOpt.h"
#include "tests/support/CRow.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/CTestElement.h"
#include "views/CZelViewInfo.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLIO.h"

#include <string>

// The parts of a view, whose file forms have tables of their own, as single items of a view.

namespace ZelTest {

/// The view information of every new view of a test.
inline constexpr OvZel::CZelUUID kFreshInfoId{"00000000000000000000000000000001"};
inline constexpr OvZel::CZelUUID kFullInfoId{"0000000000000000000000000000000F"};

/// The element of a part as the part writes it.
template <class Part>
std::string partText(CTestDocument& document, const std::string& tag, const Part& part)
{
    CTestElement target;
    OvZel::CZelXMLIO io(document.ref(), true);
    part.addTo(io, OvZel::CZelXMLAdd(OvZel::CZelXMLAdd(target.element()).AddElement(tag)));
    const std::string text = target.text();
    const std::size_t start = text.find("<E>") + 3;
    return text.substr(start, text.rfind("</E>") - start);
}

inline CRow viewInfoRow()
{
    CTestDocument document;
    OvZel::TZelComPtr info(new OvZel::CZelViewInfo(document.ref()));
    info->setId(&kFreshInfoId);
    const std::string fresh = partText(document, "View.Info", *info);
    info->setId(&kFullInfoId);
    info->setHeliodonName("Other");
    return raw("View.Info", partText(document, "View.Info", *info), fresh);
}

inline CRow optionsRow()
{
    CTestDocument document;
    OvZel::CAnimRenderingOpt options(document.ref());
    const std::string fresh = partText(document, "Options", options);
    options.getRenderingOpt()->setWidth(641);
    options.getCompressionOpt()->setDepth(3);
    return raw("Options", partText(document, "Options", options), fresh);
}

/// Makes views for checkElement.
template <class View>
auto newView()
{
    return [](CTestDocument& document) {
        OvZel::TZelComPtr view(new View(document.ref()));
        view->getViewInfo()->setId(&kFreshInfoId);
        return view;
    };
}

} // namespace ZelTest
