#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/colladaModel.h"
#include "tests/support/CClientDocument.h"
#include "tests/toolRun.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

// The cameras of a model become views.

namespace {

using OvZel::CZelPoint;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr double kQuarter = 1.57079632679489661923;

void expectPoint(const CZelPoint& point, const CZelPoint& expected)
{
    EXPECT_NEAR(point.x, expected.x, 2e-6);
    EXPECT_NEAR(point.y, expected.y, 2e-6);
    EXPECT_NEAR(point.z, expected.z, 2e-6);
}

class ToolCameras : public testing::Test {
protected:
    CRun make(const std::string& name, const std::string& text, const char* option = nullptr)
    {
        std::vector<std::string> arguments = {"from-model", mFolder.put(name, text), mFile};
        if (option)
            arguments.emplace_back(option);
        const CRun run = runTool(arguments);
        EXPECT_EQ(run.code, 0) << run.messages;
        EXPECT_TRUE(mDocument.read(contents(mFile)));
        EXPECT_THAT(mDocument.takeMessages(), IsEmpty());
        return run;
    }

    std::int32_t nbViews() { return mDocument->getCameras()->getNbObjects(); }
    OvZel::IZelCamera& view(std::int32_t index)
    {
        return *mDocument->getCameras()->getZelObject(index);
    }

    CTempFolder mFolder;
    std::string mFile = mFolder.file("made.zel");
    ZelTest::CClientDocument mDocument;
};

/// A camera of the given optics that looks along -X, in a node that is moved.
std::string gltf(const std::string& optics)
{
    return R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],"nodes":[)"
           R"({"name":"Body","children":[1],"translation":[10,0,0]},)"
           R"({"name":"Eye","camera":0,"rotation":[0,0.70710678,0,0.70710678],)"
           R"("translation":[1,2,3]}],"cameras":[)" +
           optics + "]}";
}

std::string perspective(const std::string& values)
{
    return R"({"type":"perspective","perspective":{"znear":0.01,)" + values + "}}";
}

TEST_F(ToolCameras, EachIsAViewWhereItsNodesPutIt)
{
    const struct {
        CMatrix outer, matrix;
        CZelPoint position, target, up;
    } cases[] = {
        {moved(0, 0, 0), moved(0, 0, 0), {0, 0, 0}, {0, 0, -1}, {0, 1, 0}},
        {moved(10, 0, 0) * turnedZ(kQuarter),
         moved(1, 2, 3) * turnedY(kQuarter),
         {8, 1, 3},
         {8, 0, 3},
         {-1, 0, 0}},
        {scaled(100, 100, 100), moved(1, 2, 3), {100, 200, 300}, {100, 200, 299}, {0, 1, 0}},
        {scaled(1, 1, -2), moved(0, 0, 4), {0, 0, -8}, {0, 0, -7}, {0, 1, 0}},
    };
    for (const char* option : {"", "--flat"})
        for (const auto& [outer, matrix, position, target, up] : cases) {
            const std::string text = collada({{"floor", "sq", "steel", moved(0, 0, 0)}},
                                             {{"Eye", "wide", outer, matrix}});
            const CRun run = make("in.dae", text, *option ? option : nullptr);
            EXPECT_THAT(run.messages, IsEmpty());
            ASSERT_EQ(nbViews(), 1) << option;
            EXPECT_STREQ(view(0).getBasicData()->getName(), "Eye");
            expectPoint(view(0).getPosition(), position);
            expectPoint(view(0).getTarget(), target);
            EXPECT_TRUE(view(0).getUpIsSet());
            expectPoint(view(0).getUp(), up);
        }
}

TEST_F(ToolCameras, TheFocalIsTheAngleFromSideToSide)
{
    const CMatrix here = moved(0, 0, 0);
    make("in.dae", collada({}, {{"A", "wide", here, here}, {"B", "tall", here, here}}));
    ASSERT_EQ(nbViews(), 2);
    EXPECT_NEAR(view(0).getFocal(), 60.0, 1e-4);
    EXPECT_NEAR(view(1).getFocal(), 72.104686, 1e-4); // 2 atan(2 tan(20))
    EXPECT_STREQ(view(1).getBasicData()->getName(), "B");
}

TEST_F(ToolCameras, AViewShowsAllLayers)
{
    make("in.dae", collada({{"near", "tri", "red", moved(0, 0, 0)},
                            {"floor", "sq", "steel", moved(0, -1, 0)}},
                           {{"Eye", "wide", moved(0, 0, 0), moved(0, 0, 9)}}));
    auto& layers = *view(0).getViewInfo()->getLayers();
    ASSERT_EQ(mDocument->getLayers()->getNbObjects(), 2);
    ASSERT_EQ(layers.getNbObjects(), 2);
    for (std::int32_t i = 0; i < 2; ++i)
        EXPECT_EQ(*layers.getZelObject(i),
                  *mDocument->getLayers()->getZelObject(i)->getBasicData()->getId());
    EXPECT_THAT(runTool({"check", mFile}).output, IsEmpty());
}

TEST_F(ToolCameras, ThoseOfGltfStandAtTheirNodes)
{
    const struct {
        const char* optics;
        double focal;
    } cases[] = {
        {R"("aspectRatio":2.0,"yfov":0.7)", 72.263148},  // 2 atan(2 tan(0.35))
        {R"("aspectRatio":0.5,"yfov":2.8)", 141.935898}, // 2 atan(0.5 tan(1.4))
        {R"("yfov":0.7)", 40.107046},
        {R"("yfov":0.0)", 50.0}, // no angle: that of a new view stays
    };
    for (const char* option : {"", "--flat"})
        for (const auto& [optics, focal] : cases) {
            make("in.gltf", gltf(perspective(optics)), *option ? option : nullptr);
            ASSERT_EQ(nbViews(), 1) << optics << option;
            EXPECT_STREQ(view(0).getBasicData()->getName(), "Eye");
            expectPoint(view(0).getPosition(), {11, 2, 3});
            expectPoint(view(0).getTarget(), {10, 2, 3});
            expectPoint(view(0).getUp(), {0, 1, 0});
            EXPECT_NEAR(view(0).getFocal(), focal, 1e-3) << optics;
        }
}

TEST_F(ToolCameras, ParallelOnesAreLeftOutAndToldOf)
{
    const CRun run = make("in.gltf", gltf(R"({"type":"orthographic","orthographic":)"
                                          R"({"xmag":2,"ymag":1,"zfar":9,"znear":0.1}})"));
    EXPECT_THAT(run.messages, HasSubstr("in.gltf: cameras of parallel views, left out: 1\n"));
    EXPECT_EQ(nbViews(), 0);
}

TEST_F(ToolCameras, APlaceThatIsNoNumberIsRefused)
{
    CMatrix place = moved(0, 0, 0);
    place[3] = 1e300; // beyond what the model can hold
    const std::string model =
        mFolder.put("in.dae", collada({}, {{"Eye", "wide", place, moved(0, 0, 0)}}));
    const CRun run = runTool({"from-model", "--flat", model, mFile});
    EXPECT_EQ(run.code, 65);
    EXPECT_THAT(run.messages, HasSubstr("isn't a number"));
    EXPECT_THAT(mFolder.names(), ElementsAre("in.dae"));
}

} // namespace

#endif
