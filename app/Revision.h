#pragma once

/// The revision of the sources that the program was built from, as git describes it: the last
/// version tag, the number of commits after it and the commit, or "unknown" outside git.
[[nodiscard]] const char* sourceRevision();
