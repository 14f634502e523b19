#include "platform/typing/x11/X11PasteKeys.h"

#include "platform/x11/X11Connection.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <optional>

namespace velm
{

namespace
{

// Key symbols of X11/keysymdef.h.
constexpr xcb_keysym_t letterV = 0x76;
constexpr xcb_keysym_t leftShift = 0xffe1;
constexpr xcb_keysym_t leftControl = 0xffe3;

// The server's keyboard map: for each key code, a row of symbols by group and level.
struct KeyMap {
    xcb_keycode_t first;
    int columns;
    int keys;
    const xcb_keysym_t *symbols;

    // The first layout's plain symbol counts most: a second, say Cyrillic, layout may lack the letter.
    std::optional<xcb_keycode_t> codeOf(xcb_keysym_t symbol) const
    {
        for (int column = 0; column < columns; ++column) {
            for (int key = 0; key < keys; ++key) {
                if (symbols[key * columns + column] == symbol)
                    return static_cast<xcb_keycode_t>(first + key);
            }
        }
        return {};
    }
};

}

X11PasteKeys::X11PasteKeys(X11Connection &connection) : m_connection(connection)
{
    const auto *extension = xcb_get_extension_data(connection.xcb(), &xcb_test_id);
    m_hasXTest = extension && extension->present;
}

void X11PasteKeys::press(PasteChord chord)
{
    if (!m_hasXTest)
        return;
    const auto codes =
        codesOf(chord == PasteChord::ControlShiftV ? QList<xcb_keysym_t>{leftControl, leftShift, letterV}
                                                   : QList<xcb_keysym_t>{leftControl, letterV});
    std::for_each(codes.begin(), codes.end(), [this](auto code) { send(XCB_KEY_PRESS, code); });
    std::for_each(codes.rbegin(), codes.rend(), [this](auto code) { send(XCB_KEY_RELEASE, code); });
    m_connection.flush();
}

// Looked up each time: the person may change the layout.
QList<xcb_keycode_t> X11PasteKeys::codesOf(const QList<xcb_keysym_t> &keys)
{
    const xcb_setup_t *setup = xcb_get_setup(m_connection.xcb());
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto answer =
        m_connection.reply(xcb_get_keyboard_mapping_reply,
                           xcb_get_keyboard_mapping(m_connection.xcb(), setup->min_keycode, count));
    QList<xcb_keycode_t> codes;
    if (!answer || answer->keysyms_per_keycode == 0)
        return codes;
    const KeyMap map{setup->min_keycode, answer->keysyms_per_keycode, count,
                     xcb_get_keyboard_mapping_keysyms(answer.get())};
    for (const xcb_keysym_t key : keys) {
        if (const auto code = map.codeOf(key))
            codes.append(*code);
    }
    return codes;
}

void X11PasteKeys::send(quint8 kind, xcb_keycode_t code)
{
    xcb_test_fake_input(m_connection.xcb(), kind, code, XCB_CURRENT_TIME, m_connection.root(), 0, 0, 0);
}

}
