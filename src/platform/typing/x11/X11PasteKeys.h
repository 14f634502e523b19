#pragma once

#include "platform/typing/PasteKeys.h"

#include <QList>

#include <xcb/xcb.h>

namespace velm
{

class X11Connection;

// Presses keys by the server's XTEST extension.
class X11PasteKeys final : public PasteKeys
{
public:
    explicit X11PasteKeys(X11Connection &connection);

    bool isTrusted() const override { return m_hasXTest; }
    void askForTrust() override {} // an X server without XTEST has nobody to ask
    void press(PasteChord chord) override;

private:
    QList<xcb_keycode_t> codesOf(const QList<xcb_keysym_t> &keys);
    void send(quint8 kind, xcb_keycode_t code);

    X11Connection &m_connection;
    bool m_hasXTest;
};

}
