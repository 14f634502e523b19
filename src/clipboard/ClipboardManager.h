#pragma once

#include "app/SharedForQml.h"
#include "clipboard/ClipArchive.h"
#include "clipboard/ClipList.h"
#include "clipboard/ClipWatch.h"
#include "clipboard/Paster.h"
#include "platform/SharedInstance.h"

namespace velm
{

class Feedback;
class IslandController;
class Store;
class UndoOffer;

// The clipboard's history: takes in what other programs copy, keeps it within its limit and on the disk,
// gives clips back to the pasteboard. A copy of what is there already raises the clip instead of adding one.
class ClipboardManager : public QObject, public SharedInstance<ClipboardManager>
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    Q_PROPERTY(velm::ClipFilters::ClipFilter filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(bool isPaused READ isPaused NOTIFY isPausedChanged)
    Q_PROPERTY(velm::ValueListBase *model READ model CONSTANT)          // roles: ClipRow's properties
    Q_PROPERTY(velm::ClipCounts counts READ counts NOTIFY itemsChanged) // for the chips
    Q_PROPERTY(int totalCount READ totalCount NOTIFY itemsChanged)
    Q_PROPERTY(int pinnedCount READ pinnedCount NOTIFY itemsChanged)

public:
    using ClipFilter = velm::ClipFilter;

    ClipboardManager(RunLoop &loop, Store &store, Settings &settings, Feedback &feedback,
                     IslandController &island, Pasteboard &pasteboard, FrontProgram &front, PasteKeys &keys,
                     UndoOffer &undo);
    ~ClipboardManager() override;
    static ClipboardManager *create(QQmlEngine *, QJSEngine *) { return sharedForQml<ClipboardManager>(); }

    // Captures from now on; what is on the pasteboard already is not captured.
    void start();

    Q_INVOKABLE void togglePause();

    // Puts the clip on the pasteboard, and with `paste` into the program in front as well. Each does nothing
    // when there is no such clip.
    Q_INVOKABLE void use(const QString &id, bool paste);
    Q_INVOKABLE void togglePin(const QString &id);
    Q_INVOKABLE void remove(const QString &id);
    Q_INVOKABLE void clearUnpinned();

    // Of a row of the model; empty where there is none.
    Q_INVOKABLE QString idAt(int row) const;

    // The model has rows only while somebody looks at them.
    Q_INVOKABLE void setActive(bool isActive) { m_list.setActive(isActive); }

    const QList<ClipItem> &items() const { return m_archive->history().items(); }
    QList<ClipItem> visibleItems() const { return m_list.visibleItems(); }
    QString search() const { return m_list.search(); }
    void setSearch(const QString &search);
    ClipFilter filter() const { return m_list.filter(); }
    void setFilter(velm::ClipFilter filter);
    bool isPaused() const { return m_isPaused; }
    ClipListModel *model() { return &m_list.model(); }
    ClipCounts counts() const { return countClips(items()); }
    int totalCount() const { return static_cast<int>(items().size()); }
    int pinnedCount() const { return m_archive->history().pinnedCount(); }

Q_SIGNALS:
    void searchChanged();
    void filterChanged();
    void isPausedChanged();
    void itemsChanged();

private:
    void take(const SeenClip &clip);
    bool swallowOwn(const SeenClip &clip);
    void addOrRaise(const ClipItem &item);
    void holdOn(const SeenClip &clip);
    void replaceAbandoned();
    void write(const ClipItem &item);
    void drop(const QList<RemovedClip> &removed, const QString &text);
    void finishRemoval(const QList<RemovedClip> &removed);
    void bringBack(const QList<RemovedClip> &removed);
    void save();

    RunLoop &m_loop;
    Store &m_store;
    Settings &m_settings;
    Feedback &m_feedback;
    IslandController &m_island;
    Pasteboard &m_pasteboard;
    UndoOffer &m_undo;
    ClipFolder m_folder;
    std::shared_ptr<ClipArchive> m_archive;
    ClipList m_list;
    ClipWatch m_watch;
    Paster m_paster;
    bool m_isPaused = false;
    std::optional<QString> m_selfWriteFingerprint;
    // The last copy and its clip, to be offered on when its program goes.
    quint64 m_heldChange = 0;
    QString m_heldId;
};

}
