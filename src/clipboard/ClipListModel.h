#pragma once

#include "app/ValueListModel.h"
#include "clipboard/ClipRow.h"

namespace velm
{

// The rows of the clipboard panel: ClipRow's properties are the roles.
class ClipListModel : public ValueListModel<ClipRow>
{
    Q_OBJECT

public:
    using ValueListModel<ClipRow>::ValueListModel;
};

}
