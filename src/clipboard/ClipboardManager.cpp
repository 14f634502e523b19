#include "clipboard/ClipboardManager.h"

#include "app/Feedback.h"
#include "app/Store.h"
#include "app/UndoOffer.h"
#include "clipboard/ClipActivities.h"
#include "clipboard/ClipOffer.h"
#include "island/IslandController.h"

#include <QCoreApplication>

namespace velm
{

namespace
{

const QString fileName = QStringLiteral("clipboard.json");

QSet<QString> pictureNames(const QList<ClipItem> &items)
{
    QSet<QString> names;
    for (const ClipItem &item : items) {
        if (item.imageFile)
            names.insert(*item.imageFile);
    }
    return names;
}

QString clearedText(qsizetype count)
{
    return count == 1 ? QCoreApplication::translate("ClipboardManager", "1 clip cleared")
                      : QCoreApplication::translate("ClipboardManager", "%1 clips cleared").arg(count);
}

}

ClipboardManager::ClipboardManager(RunLoop &loop, Store &store, Settings &settings, Feedback &feedback,
                                   IslandController &island, Pasteboard &pasteboard, FrontProgram &front,
                                   PasteKeys &keys, UndoOffer &undo)
    : m_loop(loop)
    , m_store(store)
    , m_settings(settings)
    , m_feedback(feedback)
    , m_island(island)
    , m_pasteboard(pasteboard)
    , m_undo(undo)
    , m_folder(store.clipsDir())
    , m_archive(std::make_shared<ClipArchive>(store.loadList<ClipItem>(fileName).value_or(QList<ClipItem>())))
    , m_list(loop, [this]() -> const QList<ClipItem> & { return items(); })
    , m_watch(loop, settings, pasteboard, front, m_folder)
    , m_paster(loop, keys, front)
{
    m_folder.tidy(pictureNames(items()));
    connect(&m_watch, &ClipWatch::seen, this, &ClipboardManager::take);
    connect(&m_watch, &ClipWatch::tooLarge, this, [this] { m_island.present(tooLargeActivity()); });
    connect(&m_watch, &ClipWatch::abandoned, this, &ClipboardManager::replaceAbandoned);
}

ClipboardManager::~ClipboardManager() = default;

void ClipboardManager::start() { m_watch.start(); }

void ClipboardManager::togglePause()
{
    m_isPaused = !m_isPaused;
    m_watch.setPaused(m_isPaused);
    m_island.present(m_isPaused ? pausedActivity() : resumedActivity());
    Q_EMIT isPausedChanged();
}

void ClipboardManager::take(const SeenClip &clip)
{
    const ClipItem &item = clip.taken.item;
    const bool isOwn = swallowOwn(clip);
    if (!isOwn)
        m_list.measures().remember(item, clip.taken.measure);
    const bool isKnown = isOwn || !!m_archive->history().findContent(item.fingerprint);
    if (isKnown && item.imageFile)
        m_folder.remove(*item.imageFile); // the clip that is there has the same picture
    if (!isOwn)
        addOrRaise(item);
    holdOn(clip);
}

// What we have put on the pasteboard may come back once, from a program that keeps clipboards in step. Once
// another copy lay between, it is the person's own copy.
bool ClipboardManager::swallowOwn(const SeenClip &clip)
{
    if (m_selfWriteFingerprint != clip.taken.item.fingerprint)
        return false;
    m_selfWriteFingerprint.reset();
    return clip.followsOwnWrite;
}

void ClipboardManager::addOrRaise(const ClipItem &item)
{
    const int limit = m_settings.clipboardLimit();
    const QList<ClipItem> surplus = m_archive->change([&](ClipHistory &history) {
        if (history.raise(item.fingerprint, item.date))
            return QList<ClipItem>();
        history.insert(item);
        return history.trim(limit);
    });
    for (const ClipItem &trimmed : surplus) {
        m_list.measures().forget(trimmed);
        if (trimmed.imageFile)
            m_folder.remove(*trimmed.imageFile);
    }
    save();
    m_island.present(copiedActivity(item));
}

void ClipboardManager::holdOn(const SeenClip &clip)
{
    const ClipItem *kept = m_archive->history().findContent(clip.taken.item.fingerprint);
    m_heldChange = clip.change;
    m_heldId = kept && !clip.isConcealed ? kept->id : QString();
    if (m_watch.isAbandoned(clip.change))
        replaceAbandoned();
}

// Nothing copied is lost with its program.
void ClipboardManager::replaceAbandoned()
{
    const ClipItem *item = m_archive->history().find(m_heldId);
    if (item && m_settings.keepAfterQuit() && m_watch.isAbandoned(m_heldChange))
        write(*item);
}

void ClipboardManager::use(const QString &id, bool paste)
{
    const ClipItem *item = m_archive->history().find(id);
    if (!item)
        return;
    write(*item);
    m_archive->change([&](ClipHistory &history) { history.countUse(id); });
    save();
    m_feedback.pop();
    if (paste)
        m_paster.pasteIntoFrontmostApp();
}

void ClipboardManager::write(const ClipItem &item)
{
    m_pasteboard.write(pasteboardOffer(item, m_folder));
    m_selfWriteFingerprint = item.fingerprint;
    m_watch.noteOwnWrite();
}

void ClipboardManager::togglePin(const QString &id)
{
    const QDateTime now = m_loop.wallTime().toUTC();
    if (!m_archive->change([&](ClipHistory &history) { return history.togglePin(id, now); }))
        return;
    m_feedback.tap();
    save();
}

void ClipboardManager::remove(const QString &id)
{
    const auto removed = m_archive->change(
        [&](ClipHistory &history) { return history.remove([&](auto &item) { return item.id == id; }); });
    if (!removed.isEmpty())
        drop(removed, QCoreApplication::translate("ClipboardManager", "Clip deleted"));
}

void ClipboardManager::clearUnpinned()
{
    const auto removed = m_archive->change(
        [](ClipHistory &history) { return history.remove([](auto &item) { return !item.pinned; }); });
    if (removed.isEmpty())
        m_feedback.remove();
    else
        drop(removed, clearedText(removed.size()));
}

void ClipboardManager::drop(const QList<RemovedClip> &removed, const QString &text)
{
    for (const RemovedClip &clip : removed) {
        if (clip.item.imageFile)
            m_folder.putAside(*clip.item.imageFile);
    }
    m_feedback.remove();
    save();
    // The offer may outlive this object: what is aside is then tidied at the next start.
    const QPointer<ClipboardManager> alive(this);
    m_undo.offer(
        text,
        [alive, removed] {
            if (alive)
                alive->bringBack(removed);
        },
        [alive, removed] {
            if (alive)
                alive->finishRemoval(removed);
        });
}

void ClipboardManager::finishRemoval(const QList<RemovedClip> &removed)
{
    for (const RemovedClip &clip : removed) {
        m_list.measures().forget(clip.item);
        if (clip.item.imageFile)
            m_folder.removeAside(*clip.item.imageFile);
    }
}

void ClipboardManager::bringBack(const QList<RemovedClip> &removed)
{
    for (const RemovedClip &clip : removed) {
        if (clip.item.imageFile)
            m_folder.bringBack(*clip.item.imageFile);
    }
    const int limit = m_settings.clipboardLimit();
    const QList<ClipItem> away = m_archive->change(
        [&](ClipHistory &history) { return history.restore(removed) + history.trim(limit); });
    for (const ClipItem &item : away) {
        if (item.imageFile)
            m_folder.remove(*item.imageFile);
    }
    save();
}

void ClipboardManager::save()
{
    m_store.save(ClipArchiveView{m_archive}, fileName);
    m_list.refresh();
    Q_EMIT itemsChanged();
}

QString ClipboardManager::idAt(int row) const { return m_list.rows().value(row).id; }

void ClipboardManager::setSearch(const QString &search)
{
    if (search == m_list.search())
        return;
    m_list.setSearch(search);
    Q_EMIT searchChanged();
}

void ClipboardManager::setFilter(velm::ClipFilter filter)
{
    if (filter == m_list.filter())
        return;
    m_list.setFilter(filter);
    Q_EMIT filterChanged();
}

}
