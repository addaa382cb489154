#pragma once

#include <string>

namespace nrxsim {

class SimCard;

// A card's parameter file: key=value lines closed by a checksum that catches cut files.
class ParameterFile
{
public:
    enum class Result
    {
        Loaded,
        Missing,
        Damaged
    };

    static std::string fileName(int familyIndex, int card);
    // Writes a new file next to the old one, flushes it to the disk and renames it over the
    // old one, so a power cut leaves the old file or the new one, never half of one.
    static bool save(const std::string& path, int familyIndex, int cardIndex, const SimCard& card);
    // Applies nothing unless the whole file is sound and made for this card; `problem` says
    // what is wrong with a damaged one. A new file an interrupted save left is removed.
    static Result load(const std::string& path, int familyIndex, int cardIndex, SimCard& card,
                       std::string& problem);
};

} // namespace nrxsim
