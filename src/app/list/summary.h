// The labels below the list: how many words it has, how many were left out, how often they occur.
// The same place bears the program's notice labels while there is no output.
#pragma once

#include <string_view>

#include "app/count/in_force.h"
#include "app/list/current_words.h"
#include "ui/main_form.h"

namespace quillomat {

/// Fills and shows the summary labels; hides the notice labels. Numbers are grouped with
/// `separator` and right-justified to the width of the greatest.
void ShowSummary(MainForm& frmMain, const CurrentWords& words, const InForce& inForce,
                 std::string_view separator);

/// Hides the summary labels, and shows the notice labels if asked to.
void ConcealNumWords(MainForm& frmMain, bool showNotice);

void ShowNoticeLabels(MainForm& frmMain);
void HideNoticeLabels(MainForm& frmMain);

}  // namespace quillomat
