// File requesters.
#pragma once

#include <QStringList>
#include <QWidget>
#include <string>

#include "platform/ui.h"

namespace mardel {

enum class requester_kind { kOpen, kSave };

// The chosen path, or "" when it was cancelled.
std::string AskFile(QWidget* owner, const file_request& request, requester_kind kind);

// "Name|pattern|..." as the toolkit's filters.
QStringList NameFilters(const std::string& patterns);

}  // namespace mardel
