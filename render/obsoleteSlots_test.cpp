#include "render/CAnimRenderingOpt.h"
#include "tests/support/slots.h"

using namespace OvZel;
using ZelTest::expectMargin;

TEST(RenderSlots, EveryInterfaceEndsWithItsMargin)
{
    expectMargin<CAnimRenderingOpt>(OTHER_AT(IZelCompressionOpt*, IZelViewOpt::getCompressionOpt));
    expectMargin<CRenderingOpt>(OTHER_AT(IZelEngineOptions*, IZelRenderingOpt::getEngineOptions));
    expectMargin<CZelEngineOptions>(AT(IZelEngineOptions::setHemisphericSampling));
    expectMargin<CCompressionOpt>(AT(IZelCompressionOpt::setKeyFrameRate));
    expectMargin<CRadiosityControl>(AT(IZelRadiosityControl::setFactor));
}
