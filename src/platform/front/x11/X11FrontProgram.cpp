#include "platform/front/x11/X11FrontProgram.h"

#include "platform/x11/X11Connection.h"

namespace velm
{

namespace
{

// Terminals that come without a desktop entry, or whose entry has another name than their class.
bool isKnownTerminal(const QString &windowClass)
{
    static const QStringList classes{
        QStringLiteral("xterm"),
        QStringLiteral("uxterm"),
        QStringLiteral("urxvt"),
        QStringLiteral("rxvt"),
        QStringLiteral("st"),
        QStringLiteral("st-256color"),
        QStringLiteral("alacritty"),
        QStringLiteral("kitty"),
        QStringLiteral("konsole"),
        QStringLiteral("gnome-terminal"),
        QStringLiteral("xfce4-terminal"),
        QStringLiteral("gnome-terminal-server"),
        QStringLiteral("lxterminal"),
        QStringLiteral("qterminal"),
        QStringLiteral("terminator"),
        QStringLiteral("tilix"),
        QStringLiteral("foot"),
        QStringLiteral("org.wezfurlong.wezterm"),
        QStringLiteral("mate-terminal"),
        QStringLiteral("cool-retro-term"),
        QStringLiteral("sakura"),
        QStringLiteral("com.mitchellh.ghostty"),
        QStringLiteral("guake"),
        QStringLiteral("yakuake"),
    };
    return classes.contains(windowClass.toLower());
}

}

std::optional<ProgramInfo> X11FrontProgram::current() const
{
    const xcb_window_t active =
        m_connection.cardinal(m_connection.root(), m_connection.atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW);
    if (active == XCB_WINDOW_NONE)
        return {};
    const auto windowClass = classOf(active);
    if (!windowClass)
        return {};
    auto program = m_entries.find(windowClass->name);
    if (!program)
        program = m_entries.find(windowClass->instance);
    if (!program)
        program = ProgramInfo{.name = windowClass->name, .identifier = windowClass->name};
    program->isTerminal = program->isTerminal || isKnownTerminal(windowClass->name);
    return program;
}

// WM_CLASS holds two strings, each with a NUL behind it (ICCCM section 4.1.2.5).
std::optional<X11FrontProgram::WindowClass> X11FrontProgram::classOf(xcb_window_t window) const
{
    constexpr quint32 mostWords = 256;
    const auto answer = m_connection.reply(xcb_get_property_reply,
                                           xcb_get_property(m_connection.xcb(), 0, window, XCB_ATOM_WM_CLASS,
                                                            XCB_GET_PROPERTY_TYPE_ANY, 0, mostWords));
    if (!answer || answer->format != 8)
        return {};
    const QByteArray value(static_cast<const char *>(xcb_get_property_value(answer.get())),
                           xcb_get_property_value_length(answer.get()));
    const QList<QByteArray> strings = value.split('\0');
    const QString instance = QString::fromUtf8(strings.value(0));
    const QString name = QString::fromUtf8(strings.value(1));
    if (instance.isEmpty() && name.isEmpty())
        return {};
    return WindowClass{.instance = instance, .name = name.isEmpty() ? instance : name};
}

}
