#pragma once

#include <stdexcept>
#include <unordered_set>

namespace OvZel {

class ITCENode;

/// The nodes from the top of a walk down to where it stands. A client may hang a node below itself;
/// without this the walk would never end.
class CNodePath {
public:
    /// What walks raise that need an end of the chain.
    static constexpr const char* kBelowItself = "A node of the material stands below itself";

    void enter(const ITCENode* node)
    {
        if (!mNodes.insert(node).second)
            throw std::runtime_error(kBelowItself);
    }
    void leave(const ITCENode* node) { mNodes.erase(node); }

private:
    std::unordered_set<const ITCENode*> mNodes;
};

} // namespace OvZel
