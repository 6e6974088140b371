#pragma once

#include <QDialog>
#include <QStringList>
#include <memory>

class Ui_DlgFileList;

/// Lets the user choose one of a list of file names.
class DlgFileList : public QDialog {
    Q_OBJECT

public:
    /// True if the user accepts; `fileName` is then the chosen name, and stays as it is when none was chosen.
    /// Title and names are shown as they are, never as rich text.
    static bool Show(const QString& title, const QStringList& fileList, QString& fileName);

private slots:
    void OnCloseButton();

private:
    DlgFileList(const QString& title, const QStringList& fileList);
    ~DlgFileList() override;

    std::unique_ptr<Ui_DlgFileList> ui;
};
