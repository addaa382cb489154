#include "SimFamily.h"

#include "IniFile.h"
#include "ParameterFile.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#endif

namespace nrxsim {

namespace {

// The folder this library was loaded from, with a trailing separator.
std::string libraryFolder()
{
    std::string path;
#ifdef _WIN32
    HMODULE module = nullptr;
    if (GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                               GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           reinterpret_cast<LPCSTR>(&libraryFolder), &module)) {
        char buf[MAX_PATH];
        const DWORD n = GetModuleFileNameA(module, buf, MAX_PATH);
        path.assign(buf, n);
    }
#else
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&libraryFolder), &info) != 0 && info.dli_fname)
        path = info.dli_fname;
#endif
    const auto slash = path.find_last_of("/\\");
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

} // namespace

SimFamily::SimFamily(int familyIndex) : familyIndex_(familyIndex)
{
    simulatedMs_ = clock_.nowMs();
    setDataFolder(std::string());
}

void SimFamily::setDataFolder(const std::string& folder)
{
    folder_ = folder;
    if (!folder_.empty() && folder_.back() != '/' && folder_.back() != '\\')
        folder_ += '/';
    log_.setPath(pathOf(std::string("NrxSim") + BoardSetup::familyName(familyIndex_) + ".log"));
}

std::string SimFamily::dataFolder() const
{
    if (!folder_.empty())
        return folder_;
    const std::string library = libraryFolder();
#ifndef _WIN32
    // An installed copy sits in a folder users cannot write: their boards keep their files
    // in the user's data folder instead.
    if (!library.empty() && access(library.c_str(), W_OK) != 0) {
        const char* dataHome = std::getenv("XDG_DATA_HOME");
        const char* home = std::getenv("HOME");
        std::string folder = dataHome && *dataHome ? std::string(dataHome)
                             : home && *home       ? std::string(home) + "/.local/share"
                                                   : std::string();
        if (!folder.empty()) {
            folder += "/Orvane/";
            for (auto slash = folder.find('/', 1); slash != std::string::npos;
                 slash = folder.find('/', slash + 1))
                mkdir(folder.substr(0, slash).c_str(), 0755);
            return folder;
        }
    }
#endif
    return library;
}

std::string SimFamily::pathOf(const std::string& fileName) const
{
    return dataFolder() + fileName;
}

int32_t SimFamily::load()
{
    unload();
    simulatedMs_ = clock_.nowMs();
    const auto file = IniFile::load(pathOf(BoardSetup::FileName));
    setup_ = BoardSetup::read(familyIndex_, file ? &*file : nullptr);
    for (const std::string& w : setup_.warnings)
        note(SimLog::Always, std::string(BoardSetup::FileName) + ": " + w);

    if (setup_.forcedLoadResult) {
        note(SimLog::Errors, "LoadDevice forced to " + std::to_string(*setup_.forcedLoadResult));
        return *setup_.forcedLoadResult;
    }
    bool damaged = false;
    for (int c = 0; c < static_cast<int>(setup_.cards.size()); ++c) {
        cards_.emplace_back(setup_.cards[static_cast<std::size_t>(c)], familyIndex_, c);
        SimCard& card = cards_.back();
        card.onAbnormalStop = [this, c](int axis, int32_t code) {
            note(SimLog::Errors, "card " + std::to_string(c) + " axis " + std::to_string(axis) +
                                     " stopped with " + std::to_string(code));
        };
        const std::string name = ParameterFile::fileName(familyIndex_, c);
        std::string problem;
        if (ParameterFile::load(pathOf(name), familyIndex_, c, card, problem) ==
            ParameterFile::Result::Damaged) {
            note(SimLog::Always, pathOf(name) + " not applied: " + problem);
            damaged = true;
        }
    }
    const int32_t result = damaged ? -2 : cardCount() - 1;
    note(SimLog::Errors, "LoadDevice: " + std::to_string(result) +
                             (file ? " (" : " (built-in boards, no ") + BoardSetup::FileName + ")");
    return result;
}

bool SimFamily::setForcedResult(const std::string& operation, bool use, int32_t result)
{
    for (int op = 0; op < kBoardOpCount; ++op) {
        if (operation != kBoardOps[op].name || static_cast<BoardOp>(op) == BoardOp::LoadDevice)
            continue;
        auto& forced = setup_.forcedResults[static_cast<std::size_t>(op)];
        forced = use ? std::optional<int32_t>(result) : std::nullopt;
        note(SimLog::Errors, operation + (use ? " forced to " + std::to_string(result) : " freed"));
        return true;
    }
    return false;
}

int SimFamily::forcedResult(const std::string& operation, int32_t& result) const
{
    for (int op = 0; op < kBoardOpCount; ++op) {
        if (operation != kBoardOps[op].name)
            continue;
        const int32_t* forced = forcedResult(static_cast<BoardOp>(op));
        if (forced)
            result = *forced;
        return forced ? 1 : 0;
    }
    return -1;
}

void SimFamily::unload()
{
    cards_.clear();
    faults_.reset();
    log_.close();
}

bool SimFamily::saveCard(int index)
{
    SimCard* c = card(index);
    if (!c)
        return false;
    const std::string name = ParameterFile::fileName(familyIndex_, index);
    const bool ok = ParameterFile::save(pathOf(name), familyIndex_, index, *c);
    note(ok ? SimLog::Commands : SimLog::Errors, (ok ? "saved " : "could not save ") + name);
    return ok;
}

void SimFamily::advanceTo(int64_t now)
{
    if (!cards_.empty())
        faults_.poll(*this, simulatedMs_);
    bool moving = false;
    for (const SimCard& c : cards_)
        moving = moving || c.anyMoving();
    while (moving && simulatedMs_ < now) {
        ++simulatedMs_;
        moving = false;
        for (SimCard& c : cards_)
            moving = c.step() || moving;
    }
    simulatedMs_ = now;
}

} // namespace nrxsim
