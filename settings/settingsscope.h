// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_SETTINGSSCOPE_H
#define FMTASK_SETTINGSSCOPE_H

// The two settings keys: the per-user key and the all-users (machine) key.
enum class SettingsScope { User, Machine };

#endif // FMTASK_SETTINGSSCOPE_H
