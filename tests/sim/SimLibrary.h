#pragma once

#include "nrx_contract.h"
#include "nrxsim_extras.h"

#include <QByteArray>
#include <QLibrary>
#include <QString>

// One family's simulated library loaded by absolute path; a missing export stays null.
class SimLibrary
{
public:
    struct Extras
    {
#define SIMLIBRARY_EXTRA_FIELD_(ret, name, params, args) ret(*name) params = nullptr;
        NRXSIM_FOR_EACH_EXTRA(SIMLIBRARY_EXTRA_FIELD_)
#undef SIMLIBRARY_EXTRA_FIELD_
    };

    explicit SimLibrary(int family);
    ~SimLibrary();
    SimLibrary(const SimLibrary&) = delete;
    SimLibrary& operator=(const SimLibrary&) = delete;

    static QString path(int family);
    static const char* prefix(int family);
    bool isLoaded() const
    {
        return library_.isLoaded();
    }
    QString errorString() const
    {
        return library_.errorString();
    }

    // LoadDevice on the given folder with the manual clock on.
    int loadIn(const QString& folder);
    // Puts a boards file into `folder`; false when it cannot be written.
    static bool writeBoards(const QString& folder, const QByteArray& text);

    NrxFunctionTable nrx{};
    Extras sim;

private:
    QLibrary library_;
};
