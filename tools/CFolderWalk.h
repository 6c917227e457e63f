#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// The documents of a folder and of the folders in it: ordinary files, and links to some, whose
/// names end with ".zel". Links to folders are not followed, so that a walk ends.
///
/// Each folder comes in the order of its names, by their bytes. However many entries it has, only
/// so many names are held at once; a bigger folder is read several times.
class CFolderWalk {
public:
    static constexpr std::size_t kNbHeldNames = 32768;

    /// A folder equal to the skipped one is left out; empty for none.
    explicit CFolderWalk(const std::string& skipped, std::size_t nbHeldNames = kNbHeldNames)
        : mSkipped(skipped), mNbHeldNames(nbHeldNames)
    {
    }

    /// Begins at a folder. Throws CToolError(eIoError) when it is the skipped one.
    void start(const std::string& folder);
    /// Gives the next document; false behind the last. Throws CToolError(eIoError) for a folder
    /// that can't be read, whose path it then gives; the next call goes on behind it.
    bool next(std::string& path);

private:
    struct CEntry {
        std::string name;
        bool isFolder = false;

        bool operator<(const CEntry& other) const { return name < other.name; }
    };
    struct CLevel {
        std::string folder;
        std::vector<CEntry> entries; // those that come next, backwards
        std::string last;            // the name that came last
        bool isAtStart = true;
        bool hasMore = true; // entries behind those that are held
    };

    void read(CLevel& level);
    void keep(CLevel& level, CEntry entry);
    bool isSkipped(const std::string& folder) const;

    std::string mSkipped;
    std::size_t mNbHeldNames;
    std::vector<CLevel> mLevels;
};

} // namespace tool
