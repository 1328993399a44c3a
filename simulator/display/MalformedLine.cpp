#include "simulator/display/MalformedLine.h"

#include <array>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

constexpr qsizetype Megabyte = qsizetype{1024} * 1024;

struct Kind {
    QLatin1StringView name;
    QByteArray (*make)();
};

// The lines of the first group have a valid id, so their text reaches the program. The channel
// library drops those of the second group.
const std::array Kinds = {
    Kind{"empty"_L1, [] { return QByteArray("1 \n"); }},
    Kind{"truncated"_L1, [] { return QByteArray("1 {\"cmd\":1,\"type\":2,\"vol\n"); }},
    Kind{"array"_L1, [] { return QByteArray("1 [1,2,3]\n"); }},
    Kind{"number"_L1, [] { return QByteArray("1 17\n"); }},
    Kind{"wrong-types"_L1,
         [] { return QByteArray("1 {\"cmd\":\"1\",\"type\":[],\"seq\":{},\"volume\":null}\n"); }},
    Kind{"huge-number"_L1,
         [] { return QByteArray("1 {\"cmd\":1,\"type\":2,\"volume\":1e308}\n"); }},
    Kind{"deep"_L1,
         [] {
             constexpr qsizetype Depth = 100'000;
             return "1 " + QByteArray(Depth, '[') + QByteArray(Depth, ']') + '\n';
         }},
    Kind{"long-text"_L1,
         [] { return "1 {\"cmd\":99,\"text\":\"" + QByteArray(Megabyte, 'x') + "\"}\n"; }},
    Kind{"bad-utf8"_L1,
         [] { return QByteArray("1 {\"cmd\":11,\"type\":1,\"ota_ver\":\"\xff\xc0\xaf\"}\n"); }},
    Kind{"nul"_L1, [] { return QByteArray("1 {\"cmd\":1,\0\"type\":2}\n", 22); }},

    Kind{"no-id"_L1, [] { return QByteArray("{\"cmd\":1}\n"); }},
    Kind{"no-blank"_L1, [] { return QByteArray("1{\"cmd\":1}\n"); }},
    Kind{"huge-id"_L1, [] { return QByteArray("99999999999999999999 {\"cmd\":1}\n"); }},
    Kind{"endless"_L1, [] { return "1 " + QByteArray(6 * Megabyte, 'x') + '\n'; }},
    Kind{"half-line"_L1, [] { return QByteArray("1 {\"cmd\":1,"); }},
};

} // namespace

QStringList simulator::malformedLineKinds()
{
    QStringList names;
    for (const Kind& kind : Kinds)
        names.append(kind.name);
    return names;
}

QByteArray simulator::malformedLine(int kind)
{
    return Kinds.at(size_t(kind)).make();
}
