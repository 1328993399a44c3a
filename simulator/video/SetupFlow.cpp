#include "simulator/video/SetupFlow.h"

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

struct StepContent {
    QString name;
    QString title;
    QString text;
    QString next;
    QStringList options;
};

const QList<StepContent>& contents()
{
    static const QList<StepContent> s_list{
        {u"welcome"_s,
         u"Welcome"_s,
         u"Let us set up your display. It takes a minute."_s,
         u"Start"_s,
         {}},
        {u"language"_s,
         u"Language"_s,
         u"Which language should the display speak?"_s,
         u"Next"_s,
         {u"English"_s, u"Deutsch"_s, u"Español"_s, u"Français"_s}},
        {u"network"_s,
         u"Network"_s,
         u"How does the display reach the network?"_s,
         u"Next"_s,
         {u"Cable (connected)"_s, u"Wi-Fi: Office"_s, u"Wi-Fi: Guests"_s}},
        {u"room-name"_s,
         u"Room name"_s,
         u"What is this room called?"_s,
         u"Next"_s,
         {u"Boardroom"_s, u"Huddle space"_s, u"Training room"_s, u"Studio"_s}},
        {u"finish"_s, u"All set"_s, {}, u"Finish"_s, {}},
        {u"done"_s, u"Ready for meetings"_s, {}, {}, {}},
    };
    return s_list;
}

constexpr QRectF NextArea(0.76, 0.81, 0.16, 0.1);
constexpr QRectF BackArea(0.08, 0.81, 0.16, 0.1);
constexpr QRectF FirstOptionArea(0.08, 0.34, 0.42, 0.09);
constexpr double OptionDistance = 0.11;

} // namespace

QStringList SetupFlow::stepNames()
{
    QStringList names;
    for (const StepContent& content : contents())
        names.append(content.name);
    return names;
}

QString SetupFlow::title() const
{
    return contents().at(int(m_step)).title;
}

QString SetupFlow::text() const
{
    if (m_step == Step::Finish)
        return u"%1, in %2, over: %3"_s.arg(chosen(Step::RoomName), chosen(Step::Language),
                                            chosen(Step::Network));
    if (m_step == Step::Done)
        return chosen(Step::RoomName);
    return contents().at(int(m_step)).text;
}

QString SetupFlow::chosen(Step step) const
{
    return contents().at(int(step)).options.at(m_choices.at(int(step)));
}

QList<SetupFlow::Button> SetupFlow::buttons() const
{
    const StepContent& content = contents().at(int(m_step));
    QList<Button> buttons;
    if (!content.next.isEmpty())
        buttons.append({u"next"_s, content.next, NextArea, Button::Kind::Next});
    if (m_step != Step::Welcome && m_step != Step::Done)
        buttons.append({u"back"_s, u"Back"_s, BackArea, Button::Kind::Back});
    for (int i = 0; i < int(content.options.size()); ++i)
        buttons.append({u"option%1"_s.arg(i + 1), content.options.at(i),
                        FirstOptionArea.translated(0, i * OptionDistance), Button::Kind::Option,
                        i == m_choices.at(int(m_step))});
    for (Button& button : buttons)
        button.isPressed = m_mark && m_mark->isDown && button.name == m_armed;
    return buttons;
}

QString SetupFlow::take(const PointerEvent& event)
{
    const bool isDown = event.type != PointerEvent::Type::Release;
    m_mark = Mark{event.position, isDown};
    ++m_revision;
    if (event.type == PointerEvent::Type::Press)
        m_armed = buttonAt(event.position);
    if (isDown)
        return {};
    QString released = buttonAt(event.position);
    const QString armed = std::exchange(m_armed, {});
    if (released.isEmpty() || armed != released)
        return {};
    activate(released);
    return released;
}

void SetupFlow::restart()
{
    const int revision = m_revision + 1;
    *this = SetupFlow();
    m_revision = revision;
}

QString SetupFlow::buttonAt(const QPointF& position) const
{
    const QList<Button> all = buttons();
    for (const Button& button : all) {
        if (button.area.contains(position))
            return button.name;
    }
    return {};
}

void SetupFlow::activate(const QString& button)
{
    if (button == "next"_L1)
        m_step = Step(int(m_step) + 1);
    else if (button == "back"_L1)
        m_step = Step(int(m_step) - 1);
    else
        choice() = button.last(1).toInt() - 1;
}
