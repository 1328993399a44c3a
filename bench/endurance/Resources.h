#pragma once

#include "bench/Measure.h"

#include <QString>

#include <vector>

/// What this process and its files occupy. Linux only.
struct Resources {
    double resident = 0;  ///< memory, in MB
    double heap = 0;      ///< blocks of the heap in use, in MB; 0 with a sanitizer
    double handles = 0;   ///< open files and sockets
    double threads = 0;   ///< of the process
    double tempFiles = 0; ///< files in the folder for temporary files, at any depth
    double log = 0;       ///< size of all log files together, in MB

    /// @param home  home folder of the program, which holds the logs and the folder "tmp"
    static Resources measure(const QString& home);
};

/// The resources at the end of each day, and whether they stay flat.
class ResourceDiary
{
public:
    void add(const Resources& resources) { m_days.push_back(resources); }
    /// Prints each figure of the last days against that of the days after the first tenth. True if
    /// all of them are flat.
    [[nodiscard]] bool report() const;

private:
    [[nodiscard]] bool reportOne(const char* what, double Resources::*figure, double ratio,
                                 double slack) const;

    std::vector<Resources> m_days;
};
