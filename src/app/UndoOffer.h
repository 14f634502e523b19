#pragma once

#include "app/SharedForQml.h"
#include "platform/SharedInstance.h"
#include "platform/runloop/LoopTimer.h"

#include <QObject>
#include <QQmlEngine>

#include <functional>

namespace velm
{

// The last destructive action, which can be taken back for five seconds. There is one offer at a time: a new
// one makes the old one final.
class UndoOffer : public QObject, public SharedInstance<UndoOffer>
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(bool isOffered READ isOffered NOTIFY changed)
    Q_PROPERTY(int duration READ duration CONSTANT) // milliseconds

public:
    static constexpr std::chrono::milliseconds offerDuration{5000}; // time to read the strip and reach it

    explicit UndoOffer(RunLoop &loop);
    static UndoOffer *create(QQmlEngine *, QJSEngine *) { return sharedForQml<UndoOffer>(); }

    // The action has happened and `text` says what. Either `undo` or `commit` runs, once; `commit` does what
    // cannot be taken back, such as deleting a file.
    void offer(const QString &text, std::function<void()> undo, std::function<void()> commit = {});

    Q_INVOKABLE void undo();
    Q_INVOKABLE void dismiss();

    QString text() const { return m_text; }
    bool isOffered() const { return m_isOffered; }
    int duration() const { return static_cast<int>(offerDuration.count()); }

Q_SIGNALS:
    void changed();
    void offered(); // a new offer, also where one stood before

private:
    void end(std::function<void()> chosen);

    QString m_text;
    bool m_isOffered = false;
    std::function<void()> m_undo;
    std::function<void()> m_commit;
    LoopTimer m_over;
};

}
