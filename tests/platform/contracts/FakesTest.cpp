#include "platform/contracts/FrontContract.h"
#include "platform/contracts/OverlayContract.h"
#include "platform/contracts/PasteboardContract.h"
#include "platform/contracts/PointerContract.h"
#include "platform/fakes/FakeFrontProgram.h"
#include "platform/fakes/FakeOverlay.h"
#include "platform/fakes/FakePasteboard.h"
#include "platform/fakes/FakePointer.h"

#include <QCoreApplication>

namespace velm
{

namespace
{

class FakePasteboardWorld final : public PasteboardWorld
{
public:
    Pasteboard &pasteboard() override { return m_pasteboard; }
    void copy(const QList<PasteboardData> &content) override { m_pasteboard.copy(content); }
    void copyAndHang(const QStringList &types) override { m_pasteboard.copyAndHang(types); }
    void ownerLeaves() override { m_pasteboard.abandon(); }
    QByteArray paste(const QString &type) override { return m_pasteboard.bytes(type); }
    bool waitFor(const std::function<bool()> &condition) override { return condition(); }

private:
    FakePasteboard m_pasteboard;
};

class FakePasteboardTest final : public PasteboardContract
{
    std::unique_ptr<PasteboardWorld> makeWorld() override { return std::make_unique<FakePasteboardWorld>(); }
};

class FakePointerWorld final : public PointerWorld
{
public:
    Pointer &pointer() override { return m_pointer; }
    void moveBy(QPoint distance) override { m_pointer.moveTo(m_pointer.position() + distance); }
    void press(Button) override { m_pointer.press(m_pointer.position()); }
    void release(Button) override { m_pointer.release(m_pointer.position()); }
    bool waitFor(const std::function<bool()> &condition) override { return condition(); }

private:
    FakePointer m_pointer;
};

class FakePointerTest final : public PointerContract
{
    std::unique_ptr<PointerWorld> makeWorld() override { return std::make_unique<FakePointerWorld>(); }
};

class FakeOverlayWorld final : public OverlayWorld
{
public:
    Overlay &overlay() override { return m_overlay; }
    void show() override { m_overlay.present({}); }
    bool hasKeyboard() override { return m_overlay.hasKeyboard; }
    void personClicksElsewhere() override { m_overlay.loseKeyboard(); }
    void setCompositor(bool runs) override { m_overlay.setBlending(runs); }
    bool waitFor(const std::function<bool()> &condition) override { return condition(); }

private:
    FakeOverlay m_overlay;
};

class FakeOverlayTest final : public OverlayContract
{
    std::unique_ptr<OverlayWorld> makeWorld() override { return std::make_unique<FakeOverlayWorld>(); }
};

class FakeFrontWorld final : public FrontWorld
{
public:
    FakeFrontWorld() { m_front.program.reset(); }
    FrontProgram &front() override { return m_front; }
    void workIn(const ProgramInfo &program) override { m_front.program = program; }
    void workInNothing() override { m_front.program.reset(); }
    bool waitFor(const std::function<bool()> &condition) override { return condition(); }

private:
    FakeFrontProgram m_front;
};

class FakeFrontTest final : public FrontContract
{
    std::unique_ptr<FrontWorld> makeWorld() override { return std::make_unique<FakeFrontWorld>(); }
};

}

}

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    velm::FakePasteboardTest pasteboard;
    velm::FakePointerTest pointer;
    velm::FakeOverlayTest overlay;
    velm::FakeFrontTest front;
    int failed = 0;
    for (QObject *test : std::initializer_list<QObject *>{&pasteboard, &pointer, &overlay, &front})
        failed += QTest::qExec(test, argc, argv);
    return failed;
}
