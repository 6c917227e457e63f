#include "views/CZelInsertionObject.h"

#include "core/CRange.h"
#include "core/OvThrow.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

// The state of the tool stands in "AxesPositions" as 42 pairs that are told apart by their places
// alone. A child more or less makes a reader take them for axes, as older files have them.

namespace OvZel {

using OrvaneXML::XIXMLElement;

namespace {

constexpr std::int32_t kNbPairs = 42;
constexpr CRange kPictureSize{0.0, 4'294'967'295.0};
constexpr CZelLabel kSizeAxes[] = {{"XAxis", 0}, {"YAxis", 1}, {"ZAxis", 2}, {nullptr, 0}};

void addFlag(const CZelXMLAdd& out, bool flag)
{
    out.AddCoord2D("Vector2D", 0.0, flag ? 1.0 : 0.0);
}

template <class Table>
void addPoints(const CZelXMLAdd& out, const Table& points)
{
    for (const auto& point : points)
        out.AddCoord2D("Vector2D", point.x, point.y);
}

template <class Table>
void addValues(const CZelXMLAdd& out, const Table& values)
{
    double index = 0.0;
    for (const float value : values)
        out.AddCoord2D("Vector2D", index++, static_cast<double>(value));
}

std::uint32_t toPictureSize(double size)
{
    return static_cast<std::uint32_t>(kPictureSize.clip(size));
}

/// Takes the pairs one after the other.
class CPairs {
public:
    explicit CPairs(XIXMLElement* container) : mNext(container->GetFirstElement()) {}

    bool isEnd() const { return mNext == nullptr; }
    CZelPoint2D next()
    {
        const auto [x, y] = CZelXMLGet(mNext).GetCoord2D();
        mNext = mNext->GetNextElement();
        return {x, y};
    }
    bool nextFlag() { return next().y == 1.0; }
    template <class Table>
    void nextPoints(Table& points)
    {
        for (auto& point : points) {
            const CZelPoint2D pair = next();
            point = {pair.x, pair.y};
        }
    }
    template <class Table>
    void nextValues(Table& values)
    {
        for (float& value : values)
            value = static_cast<float>(next().y);
    }

private:
    XIXMLElement* mNext;
};

std::int32_t countElements(const XIXMLElement* container)
{
    std::int32_t count = 0;
    for (const XIXMLElement* child = container->GetFirstElement(); child != nullptr;
         child = child->GetNextElement())
        ++count;
    return count;
}

} // namespace

XIXMLElement* CZelInsertionObject::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    XIXMLElement* child = CZelXMLAdd(element).ReuseElement("InsertionObject");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelInsertionObject::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("InsertionObject")));
    return true;
}

void CZelInsertionObject::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    if (!mActive)
        return;
    addState(CZelXMLAdd(out.AddElement("AxesPositions")));
    addPoints(CZelXMLAdd(out.AddElement("PerpectiveToolPositions")), mPerpectiveToolPositions);
    const CZelXMLAdd repere(out.AddElement("ReperePositions"));
    for (const CZelPoint& point : mReperePositions)
        repere.AddCoord3D("Vector3D", point);
    out.AddAttributeLabel("SizeAxis", kSizeAxes, mSizeAxis);
    out.AddBoolean("AxesVisibility", mAxesVisibility);
    out.AddBoolean("ModelVisibility", mModelVisibility);
    out.AddBoolean("PerpectiveToolVisibility", mPerspectiveToolVisibility); // (sic)
    out.AddBoolean("YAxeInverted", mYAxeInverted);
}

void CZelInsertionObject::addState(const CZelXMLAdd& out) const
{
    addFlag(out, mFlagD);
    out.AddCoord2D("Vector2D", mWidth, mHeight);
    addPoints(out, mNormalised);
    addPoints(out, mPixels);
    addValues(out, mValues);
    addValues(out, mSixValues);
    addFlag(out, mFlagE);
}

void CZelInsertionObject::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mActive = in.element()->GetFirstElement() != nullptr;
    if (!mActive)
        return;
    if (XIXMLElement* axes = in.FindElement("AxesPositions"))
        getState(CZelXMLGet(axes));
    if (XIXMLElement* tool = in.FindElement("PerpectiveToolPositions")) {
        CPairs pairs(tool);
        for (std::int32_t i = 0; !pairs.isEnd(); ++i)
            setPerpectiveToolPosition(i, pairs.next());
    }
    if (XIXMLElement* repere = in.FindElement("ReperePositions")) {
        std::int32_t i = 0;
        for (XIXMLElement* point = repere->GetFirstElement(); point != nullptr;
             point = point->GetNextElement())
            setReperePosition(i++, CZelXMLGet(point).GetCoord3D());
    }
    if (in.GetOptionalAttribute("SizeAxis") != nullptr)
        mSizeAxis = in.GetAttributeLabel("SizeAxis", kSizeAxes);
    mAxesVisibility = in.IsElement("AxesVisibility");
    mModelVisibility = in.IsElement("ModelVisibility");
    mPerspectiveToolVisibility = in.IsElement("PerpectiveToolVisibility"); // (sic)
    mYAxeInverted = in.IsElement("YAxeInverted");
}

void CZelInsertionObject::getState(const CZelXMLGet& in)
{
    CPairs pairs(in.element());
    if (countElements(in.element()) != kNbPairs) {
        for (std::int32_t i = 0; !pairs.isEnd(); ++i)
            setAxesPosition(i, pairs.next());
        return;
    }
    mFlagD = pairs.nextFlag();
    const CZelPoint2D size = pairs.next();
    mWidth = toPictureSize(size.x);
    mHeight = toPictureSize(size.y);
    pairs.nextPoints(mNormalised);
    pairs.nextPoints(mPixels);
    pairs.nextValues(mValues);
    pairs.nextValues(mSixValues);
    mFlagE = pairs.nextFlag();
}

} // namespace OvZel
