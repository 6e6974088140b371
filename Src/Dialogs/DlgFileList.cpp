#include "Dialogs/DlgFileList.h"

#include "Dialogs/DlgShared.h"
#include "ui_DlgFileList.h"

DlgFileList::DlgFileList(const QString& title, const QStringList& fileList)
    : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgFileList)
{
    ui->setupUi(this);
    ui->headerTxt->setText(title);
    ui->fileNameList->addItems(fileList);
    DlgShared::Center(*this);
    connect(ui->buttonOk, &QPushButton::clicked, this, &DlgFileList::OnCloseButton);
    connect(ui->buttonCancel, &QPushButton::clicked, this, &DlgFileList::OnCloseButton);
}

DlgFileList::~DlgFileList() = default;

bool DlgFileList::Show(const QString& title, const QStringList& fileList, QString& fileName)
{
    DlgFileList dialog(title, fileList);
    if (dialog.exec() != Accepted) {
        return false;
    }
    if (const QListWidgetItem* chosen = dialog.ui->fileNameList->currentItem()) {
        fileName = chosen->text();
    }
    return true;
}

void DlgFileList::OnCloseButton()
{
    if (sender() == ui->buttonOk) {
        accept();
    } else {
        reject();
    }
}
