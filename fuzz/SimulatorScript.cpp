// The input is a scenario, which is checked and not run.
#include "fuzz/FuzzSupport.h"
#include "simulator/Simulator.h"

#include <QCoreApplication>

#include <sstream>

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static int s_argc = 1;
    static char s_name[] = "fuzz";
    static char* s_argv[] = {s_name, nullptr};
    static const QCoreApplication s_app(s_argc, s_argv);
    static const QString s_path = fuzz::temporaryFile(u"story"_s);
    static std::ostringstream s_events;
    static std::ostringstream s_errors;
    fuzz::write(s_path, fuzz::bytes(data, size));
    simulator::Simulator simulator(fuzz::temporaryFile(u"hub"_s), s_events, s_errors);
    const bool isValid = simulator.loadScenario(s_path);
    fuzz::require(isValid == s_errors.str().empty(), "an error has a message");
    fuzz::require(s_events.str().empty(), "no command has run");
    s_errors.str({});
    return 0;
}
