#pragma once

#include "SimExtras.h"
#include "nrx_contract.h"

#include <QByteArray>
#include <QLibrary>
#include <QString>

// One family's simulated library loaded by absolute path; a missing export stays null.
class SimLibrary
{
public:
    explicit SimLibrary(int family);
    ~SimLibrary();
    SimLibrary(const SimLibrary&) = delete;
    SimLibrary& operator=(const SimLibrary&) = delete;

    static QString path(int family);
    static const char* prefix(int family);
    bool isLoaded() const { return library_.isLoaded(); }
    QString errorString() const { return library_.errorString(); }

    // LoadDevice on the given folder with the manual clock on.
    int loadIn(const QString& folder);

    NrxFunctionTable nrx{};
    SimExtras sim;

private:
    QLibrary library_;
};
