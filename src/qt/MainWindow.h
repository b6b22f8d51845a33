#pragma once
// The Qt window of frmClientDiaryMain.

#include <QMainWindow>

namespace orbidex {

class frmClientDiaryMain;

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(frmClientDiaryMain& form);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    frmClientDiaryMain& form_;
};

}  // namespace orbidex
