#pragma once

#include "platform/posix/posix_files.h"
#include "support/faulty_transfer_disk.h"
#include "support/temp_folder.h"

#include <string>
#include <vector>

namespace tavo {

// A trash that only writes down what it was given.
class ListingTrash : public Trash {
public:
    explicit ListingTrash(std::vector<std::string>& taken) : taken_(taken) {}
    int Take(const std::string& path) override
    {
        taken_.push_back(path);
        return diskOk;
    }

private:
    std::vector<std::string>& taken_;
};

// Two folders on two disks, and the calls between them. Where the machine has
// no second disk to write to, the renames between them say so all the same.
struct TransferGround {
    enum class Disks { Two, MemoryAlone };
    // In memory alone all goes faster by far, for tests that do it all over
    // and over again.
    explicit TransferGround(Disks disks = Disks::Two);

    // Are the folders on two disks by themselves?
    bool HasTwoDisks() const;

    int Run(FileOpFunc func, const std::string& from, const std::string& to = {},
            int flags = fofQuiet);

    TempFolder Here, There;
    CallScript Script;
    std::vector<std::string> Recycled;
    PosixFiles Files;
};

// A folder with all below it, a line an entry: the name, what it is, and the
// content or the link's text; with `withProperties` mode, written time and
// extended attributes too. With `hidden` false, without the entries (and all in
// them) that bear the hidden name of an unfinished copy.
std::vector<std::string> Described(const std::string& folder, bool withProperties,
                                   bool hidden = true);

} // namespace tavo
