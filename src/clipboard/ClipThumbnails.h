#pragma once

#include "clipboard/ClipFolder.h"
#include "platform/runloop/RunLoop.h"

#include <QQuickAsyncImageProvider>
#include <QUrl>

#include <memory>

namespace velm
{

// Small square pictures of the history's pictures for rows: "image://clip/NAME/RADIUS/WIDTH", radius and
// width in device pixels. Made off the main thread; a few of the last stay in memory.
class ClipThumbnails : public QQuickAsyncImageProvider
{
public:
    static constexpr const char *providerName = "clip";

    // Without radius and width.
    static QUrl address(const QString &name);

    ClipThumbnails(RunLoop &loop, ClipFolder folder);
    ~ClipThumbnails() override;

    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &requestedSize) override;

private:
    class Cache;

    ClipFolder m_folder;
    std::shared_ptr<Cache> m_cache; // of the queue
    std::unique_ptr<SerialQueue> m_queue;
};

}
