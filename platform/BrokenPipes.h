#pragma once

namespace platform
{

/// Lets the program outlive whoever reads its standard output or error, or another pipe of its: a
/// write then fails, and does not end the process. To be called before the first such write.
/// Programs that this one starts are not affected.
void surviveBrokenPipes();

} // namespace platform
