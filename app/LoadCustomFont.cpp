#include "app/LoadCustomFont.h"

#include "logging/Log.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlContext>

bool LoadCustomFont(QQmlContext* context, const QString& path, const QString& name)
{
    constexpr auto Function = "LoadCustomFont";
    Log::info(Function) << "fontpath:" << path << ", fontname:" << name;
    const int id = QFontDatabase::addApplicationFont(path);
    if (id == -1) {
        Log::error(Function) << "Failed to load font!";
        return false;
    }
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (families.isEmpty()) {
        Log::error(Function) << "Font family not found!";
        return false;
    }
    for (const QString& family : families)
        Log::info(Function) << "Font family:" << family;
    Log::info(Function) << "Loaded font family:" << families.first() << " as " << name;
    context->setContextProperty(name, families.first());
    return true;
}

void preferTypographicLineHeight()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QFont font = QGuiApplication::font();
    font.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(font.styleStrategy() | QFont::PreferTypoLineMetrics));
    QGuiApplication::setFont(font);
#endif
}
