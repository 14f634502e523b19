#include "clipboard/ClipWatch.h"

#include "app/Settings.h"
#include "clipboard/OwnProgram.h"

#include <algorithm>

namespace velm
{

namespace
{

constexpr int smallestSizeLimit = 1; // megabytes

QString unknownProgram() { return QStringLiteral("Unknown"); }

}

ClipWatch::ClipWatch(RunLoop &loop, Settings &settings, Pasteboard &pasteboard, FrontProgram &front,
                     ClipFolder folder)
    : m_loop(loop)
    , m_settings(settings)
    , m_pasteboard(pasteboard)
    , m_front(front)
    , m_folder(std::move(folder))
    , m_reading(std::make_shared<std::atomic<ClipReading>>(ClipReading::Nothing))
    , m_queue(loop.makeQueue("app.velm.clips"))
{}

ClipWatch::~ClipWatch() = default;

void ClipWatch::start()
{
    if (m_hasStarted)
        return;
    m_hasStarted = true;
    connect(&m_settings, &Settings::clipboardEnabledChanged, this, &ClipWatch::followSettings);
    connect(&m_settings, &Settings::ignoreConcealedChanged, this, &ClipWatch::followSettings);
    connect(&m_settings, &Settings::clipSizeLimitMegabytesChanged, this, &ClipWatch::followSettings);
    connect(&m_pasteboard, &Pasteboard::changed, this, &ClipWatch::noteChange);
    connect(&m_pasteboard, &Pasteboard::read, this, &ClipWatch::noteRead);
    connect(&m_pasteboard, &Pasteboard::abandoned, this, &ClipWatch::noteAbandoned);
    followSettings();
    m_pasteboard.watch([reading = m_reading](const QStringList &types, const QList<PasteboardData> &soFar) {
        return nextType(*reading, types, soFar);
    });
}

void ClipWatch::setPaused(bool isPaused)
{
    m_isPaused = isPaused;
    followSettings();
}

void ClipWatch::noteOwnWrite()
{
    m_isHoldingOwn = true;
    m_isAbandoned = false;
}

void ClipWatch::noteChange(quint64 change)
{
    const bool followsOwnWrite = std::exchange(m_isHoldingOwn, false);
    m_latestChange = change;
    m_isAbandoned = false;
    const auto program = m_front.current();
    if (!isCapturing() || (program && isOwn(*program)))
        return;
    ClipSource source{.program = unknownProgram(), .identifier = {}, .date = m_loop.wallTime().toUTC()};
    if (program) {
        source.program = program->name.isEmpty() ? unknownProgram() : program->name;
        source.identifier = program->identifier;
    }
    m_arrivals[change] = {std::move(source), followsOwnWrite};
}

void ClipWatch::noteRead(const PasteboardContent &content)
{
    const auto arrival = m_arrivals.extract(content.change);
    // Contents come in the order of the copies: of earlier ones none was to be read.
    m_arrivals.erase(m_arrivals.begin(), m_arrivals.lower_bound(content.change));
    if (arrival.empty())
        return;
    if (m_settings.ignoreConcealed() && isConcealed(content.types, content.data))
        return;
    if (content.outcome == PasteboardOutcome::TooLarge)
        Q_EMIT tooLarge();
    else if (content.outcome == PasteboardOutcome::Read)
        takeInLater(content, arrival.mapped());
}

void ClipWatch::takeInLater(const PasteboardContent &content, const Arrival &arrival)
{
    SeenClip clip{.change = content.change,
                  .taken = {},
                  .isConcealed = isConcealed(content.types, content.data),
                  .followsOwnWrite = arrival.followsOwnWrite};
    m_loop.runOn(
        *m_queue, this,
        [content = content, source = arrival.source, folder = m_folder]() mutable {
            return takeIn(std::move(content), source, folder);
        },
        [this, clip](std::optional<TakenClip> taken) mutable {
            if (!taken)
                return;
            clip.taken = *std::move(taken);
            Q_EMIT seen(clip);
        });
}

void ClipWatch::noteAbandoned()
{
    if (m_isHoldingOwn)
        return;
    m_isAbandoned = true;
    Q_EMIT abandoned(m_latestChange);
}

void ClipWatch::followSettings()
{
    const auto wanted = m_settings.ignoreConcealed() ? ClipReading::Unmarked : ClipReading::Everything;
    *m_reading = isCapturing() ? wanted : ClipReading::Nothing;
    m_pasteboard.setSizeLimit(mebibytes(std::max(m_settings.clipSizeLimitMegabytes(), smallestSizeLimit)));
}

bool ClipWatch::isCapturing() const { return m_settings.clipboardEnabled() && !m_isPaused; }

}
