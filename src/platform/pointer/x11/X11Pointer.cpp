#include "platform/pointer/x11/X11Pointer.h"

#include "platform/x11/NativePixels.h"
#include "platform/x11/X11Connection.h"

#include <xcb/xinput.h>

namespace velm
{

namespace
{

constexpr auto sampleInterval = std::chrono::nanoseconds(std::chrono::seconds(1)) / 30;

constexpr quint32 leftButton = 1;
constexpr quint32 rightButton = 3;

}

X11Pointer::X11Pointer(X11Connection &connection, RunLoop &loop)
    : m_connection(connection), m_loop(loop), m_sampling(loop), m_lastTold(loop.now() - sampleInterval)
{
    connect(&connection, &X11Connection::received, this, &X11Pointer::handle);
    const auto *extension = xcb_get_extension_data(connection.xcb(), &xcb_input_id);
    if (!extension || !extension->present)
        return;
    // From 2.1 on raw events are told during other programs' grabs too.
    const auto version = connection.reply(xcb_input_xi_query_version_reply,
                                          xcb_input_xi_query_version(connection.xcb(), 2, 2));
    if (!version || version->major_version < 2)
        return;
    m_rawEvents = extension->major_opcode;
    select();
}

X11Pointer::~X11Pointer() = default;

QPoint X11Pointer::position() const
{
    const auto pointer = m_connection.reply(xcb_query_pointer_reply,
                                            xcb_query_pointer(m_connection.xcb(), m_connection.root()));
    if (pointer && pointer->same_screen)
        m_position = toPoints({pointer->root_x, pointer->root_y});
    return m_position;
}

void X11Pointer::setFollowed(bool followed)
{
    if (followed == m_isFollowed)
        return;
    m_isFollowed = followed;
    m_motion = Motion::Resting;
    m_sampling.stop();
    m_told = position();
    select();
}

void X11Pointer::handle(const xcb_generic_event_t *event)
{
    if (!m_rawEvents || eventType(event) != XCB_GE_GENERIC)
        return;
    const auto *generic = eventAs<xcb_ge_generic_event_t>(event);
    if (generic->extension != m_rawEvents)
        return;
    if (generic->event_type == XCB_INPUT_RAW_MOTION) {
        if (m_isFollowed && m_motion == Motion::Resting)
            beginMotion();
    } else if (generic->event_type == XCB_INPUT_RAW_BUTTON_PRESS ||
               generic->event_type == XCB_INPUT_RAW_BUTTON_RELEASE) {
        handleButton(eventAs<xcb_input_raw_button_press_event_t>(event)->detail, generic->event_type);
    }
}

// Raw events carry no position: it is asked for at once.
void X11Pointer::handleButton(quint32 button, quint16 kind)
{
    if (button != leftButton && button != rightButton)
        return;
    if (kind == XCB_INPUT_RAW_BUTTON_PRESS)
        Q_EMIT pressed(position());
    else
        Q_EMIT released(position());
}

void X11Pointer::beginMotion()
{
    m_motion = Motion::Moving;
    select();
    const auto sinceTold = m_loop.now() - m_lastTold;
    if (sinceTold < sampleInterval) {
        m_sampling.startOnce(sampleInterval - sinceTold, [this] { sample(); });
        return;
    }
    m_sampling.startOnce(sampleInterval, [this] { sample(); });
    tell(position());
}

void X11Pointer::sample()
{
    const QPoint now = position();
    if (now == m_told) {
        rest();
        return;
    }
    m_sampling.startOnce(sampleInterval, [this] { sample(); });
    tell(now);
}

// Raw motion is asked for before the last look, so that no movement falls between the two.
void X11Pointer::rest()
{
    m_motion = Motion::Resting;
    select();
    const QPoint now = position();
    if (now != m_told)
        beginMotion();
    else
        tell(now);
}

void X11Pointer::tell(QPoint position)
{
    m_told = position;
    m_lastTold = m_loop.now();
    Q_EMIT moved(position);
}

void X11Pointer::select()
{
    struct {
        xcb_input_event_mask_t head;
        quint32 mask;
    } wanted{{XCB_INPUT_DEVICE_ALL_MASTER, 1},
             XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE};
    if (m_isFollowed && m_motion == Motion::Resting)
        wanted.mask |= XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
    if (!m_rawEvents)
        return;
    xcb_input_xi_select_events(m_connection.xcb(), m_connection.root(), 1, &wanted.head);
    m_connection.flush();
}

}
