#ifndef FMTASK_FILESAVEDIALOG_H
#define FMTASK_FILESAVEDIALOG_H

class MainWindow;

namespace SaveAsOnly {

// One start step of the save-as-only mode; false means "ask again".
bool startStep(MainWindow &window);

} // namespace SaveAsOnly

#endif // FMTASK_FILESAVEDIALOG_H
