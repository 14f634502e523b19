#include "clipboard/ClipArchive.h"

#include "app/RecordCodec.h"

namespace velm
{

bool writeRecord(QIODevice &device, const ClipArchiveView &view)
{
    return writeRecords(device, view.archive->items());
}

}
