#include "tools/pairUp.h"

#include <algorithm>
#include <deque>
#include <map>
#include <utility>

namespace tool {

namespace {

constexpr std::size_t kNone = CPartners::kNone;

class CPairing {
public:
    CPairing(const std::vector<CIdentity>& a, const std::vector<CIdentity>& b)
        : mA(a), mB(b), mPartnerOfA(a.size(), kNone), mIsTaken(b.size(), false)
    {
    }

    // Elements of one key are partners in their order; those with an empty key have none.
    template <class KeyOf>
    void pairBy(KeyOf keyOf)
    {
        std::map<std::string, std::deque<std::size_t>> places;
        for (std::size_t i = 0; i < mB.size(); ++i)
            if (const std::string key = keyOf(mB[i]); !mIsTaken[i] && !key.empty())
                places[key].push_back(i);
        for (std::size_t i = 0; i < mA.size(); ++i) {
            const auto found = mPartnerOfA[i] == kNone ? places.find(keyOf(mA[i])) : places.end();
            if (found == places.end() || found->second.empty())
                continue;
            mPartnerOfA[i] = found->second.front();
            mIsTaken[found->second.front()] = true;
            found->second.pop_front();
        }
    }

    void pairLoneOnes()
    {
        const auto left = countsLeft();
        pairBy([&](const CIdentity& each) {
            const auto found = left.find(each.kind);
            return found != left.end() && found->second == CCounts(1, 1) ? each.kind : "";
        });
    }

    std::vector<CPartners> result() const
    {
        std::vector<CPartners> partners;
        for (std::size_t i = 0; i < mA.size(); ++i)
            partners.push_back({i, mPartnerOfA[i]});
        for (std::size_t i = 0; i < mB.size(); ++i)
            if (!mIsTaken[i])
                partners.push_back({kNone, i});
        return partners;
    }

private:
    using CCounts = std::pair<int, int>;

    std::map<std::string, CCounts> countsLeft() const
    {
        std::map<std::string, CCounts> counts;
        for (std::size_t i = 0; i < mA.size(); ++i)
            if (mPartnerOfA[i] == kNone)
                ++counts[mA[i].kind].first;
        for (std::size_t i = 0; i < mB.size(); ++i)
            if (!mIsTaken[i])
                ++counts[mB[i].kind].second;
        return counts;
    }

    const std::vector<CIdentity>& mA;
    const std::vector<CIdentity>& mB;
    std::vector<std::size_t> mPartnerOfA;
    std::vector<bool> mIsTaken;
};

} // namespace

// The longest run of partners that stand in one order in both lists stays, the rest has moved.
// best[n] is the partner that ends a run of n + 1 with the smallest place, before that of each the
// one in front of it.
static void markMoved(std::vector<CPartners>& partners)
{
    std::vector<std::size_t> best;
    std::vector<std::size_t> before(partners.size(), kNone);
    for (std::size_t i = 0; i < partners.size(); ++i) {
        if (partners[i].a == kNone || partners[i].b == kNone)
            continue;
        const auto place =
            std::lower_bound(best.begin(), best.end(), partners[i].b,
                             [&](std::size_t at, std::size_t b) { return partners[at].b < b; });
        before[i] = place == best.begin() ? kNone : *(place - 1);
        if (place == best.end())
            best.push_back(i);
        else
            *place = i;
        partners[i].isMoved = true;
    }
    for (std::size_t i = best.empty() ? kNone : best.back(); i != kNone; i = before[i])
        partners[i].isMoved = false;
}

std::vector<CPartners> pairUp(const std::vector<CIdentity>& a, const std::vector<CIdentity>& b,
                              bool areObjects)
{
    CPairing pairing(a, b);
    pairing.pairBy([](const CIdentity& each) {
        return each.id.empty() ? std::string() : each.kind + " " + each.id;
    });
    pairing.pairBy([](const CIdentity& each) {
        return each.name.empty() ? std::string() : each.kind + " " + each.name;
    });
    if (!areObjects)
        pairing.pairLoneOnes();
    pairing.pairBy([](const CIdentity& each) { return each.name.empty() ? each.kind : ""; });
    std::vector<CPartners> partners = pairing.result();
    markMoved(partners);
    return partners;
}

} // namespace tool
