#include "host/gui/menus/AboutBox.h"

#include "host/core/Host.h"
#include "host/gui/base/Icons.h"
#include "host/gui/base/QtText.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QTreeWidget>

namespace corvane::gui {

namespace {

QLabel* heading() {
    auto* const label = new QLabel(QStringLiteral("Corvane ") + QApplication::applicationVersion());
    QFont font = label->font();
    font.setPointSizeF(1.5 * font.pointSizeF());
    font.setBold(true);
    label->setFont(font);
    return label;
}

QTreeWidget* addOnList(host::Session& session) {
    auto* const list = new QTreeWidget;
    list->setObjectName(QStringLiteral("addOns"));
    list->setHeaderLabels({QObject::tr("Add-on"), QObject::tr("Version"), QObject::tr("Author")});
    list->setRootIsDecorated(false);
    for (const auto& addOn : session.addOns().all()) {
        new QTreeWidgetItem(list, {toQt(addOn->name), toQt(addOn->version), toQt(addOn->author)});
    }
    for (int column = 0; column < list->columnCount(); ++column) {
        list->resizeColumnToContents(column);
    }
    return list;
}

} // namespace

AboutBox::AboutBox(host::Session& session, QWidget* parent) : QDialog(parent) {
    setWindowTitle(tr("About Corvane"));
    auto* const icon = new QLabel;
    icon->setPixmap(programIcon().pixmap(64, 64));
    auto* const text = new QLabel(
        tr("Looks at 3D simulation results, and flies through them.\n\n"
           "Corvane is free software under the BSD 3-clause licence. It is built with Qt %1 "
           "(LGPL v3), VTK (BSD), FFmpeg's libraries (LGPL, or GPL as your "
           "system has built them), Boost (BSL) and CLI11 (BSD).")
            .arg(QString::fromLatin1(qVersion())));
    text->setWordWrap(true);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * 64);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(20, 20, 20, 16);
    grid->setHorizontalSpacing(16);
    grid->addWidget(icon, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(heading(), 0, 1);
    grid->addWidget(text, 1, 1);
    grid->addWidget(addOnList(session), 2, 0, 1, 2);
    grid->addWidget(buttons, 3, 0, 1, 2);
}

} // namespace corvane::gui
