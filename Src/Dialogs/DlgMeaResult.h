#pragma once

#include <QDialog>
#include <memory>

class Mea;
class Ui_DlgMeaResult;

/// Shows the verdict of a measurement.
class DlgMeaResult : public QDialog {
    Q_OBJECT

public:
    static void Show(const Mea& mea);

private:
    explicit DlgMeaResult(const Mea& mea);
    ~DlgMeaResult() override;

    std::unique_ptr<Ui_DlgMeaResult> ui;
};
