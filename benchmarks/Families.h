#pragma once

/** Each adds the comparisons of its family to those that the program runs. */
void AddButtonComparisons();
void AddMenuComparisons();
void AddComboComparisons();
void AddToolBarComparisons();
void AddFieldComparisons();
void AddTableComparisons();
void AddDialogComparisons();
void AddNoticeComparisons();
