#include "SwitchTypes.h"

#include <algorithm>

namespace switchtypes {

const SwitchType *find(quint8 id)
{
    const auto *found =
        std::find_if(All.begin(), All.end(), [id](const SwitchType &type) { return type.id == id; });
    return found == All.end() ? nullptr : found;
}

const SwitchType &shownFor(quint8 id)
{
    const SwitchType *found = find(id);
    return found ? *found : All.front();
}

} // namespace switchtypes
