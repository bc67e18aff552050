#include "host/gui/panels/DataInformation.h"

#include "host/core/page/DataSet.h"
#include "host/gui/base/QtText.h"
#include "host/gui/controls/Numbers.h"
#include "host/gui/time/SolutionTimes.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace corvane::gui {

namespace {

QString kindOf(const host::Block& block) {
    switch (block.dimension) {
    case 3:
        return QObject::tr("volume");
    case 2:
        return QObject::tr("surface");
    case 1:
        return QObject::tr("lines");
    default:
        return QObject::tr("points");
    }
}

QString between(double minimum, double maximum) {
    return QObject::tr("%1 to %2").arg(shortText(minimum), shortText(maximum));
}

QString timesOf(const host::DataSet& data) {
    const std::vector<double> times = solutionTimes(data);
    return times.empty() ? QObject::tr("steady")
                         : QObject::tr("%1, from %2")
                               .arg(times.size())
                               .arg(between(times.front(), times.back()));
}

QString boxOf(const host::DataSet& data) {
    const host::Bounds& box = data.bounds;
    if (box.isEmpty()) {
        return QObject::tr("empty");
    }
    return QObject::tr("x %1\ny %2\nz %3")
        .arg(between(box.min.x, box.max.x), between(box.min.y, box.max.y),
             between(box.min.z, box.max.z));
}

QTreeWidget* makeList(const QStringList& headers) {
    auto* const list = new QTreeWidget;
    list->setHeaderLabels(headers);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    return list;
}

QTreeWidget* variableList(const host::DataSet& data) {
    QTreeWidget* const list =
        makeList({QObject::tr("Variable"), QObject::tr("Kind"), QObject::tr("Values")});
    for (const host::Variable& variable : data.variables) {
        const bool isVector = variable.components == 3;
        new QTreeWidgetItem(list,
                            {toQt(variable.name),
                             isVector ? QObject::tr("vector, its length") : QObject::tr("scalar"),
                             between(variable.minimum, variable.maximum)});
    }
    return list;
}

QTreeWidget* blockList(const host::DataSet& data) {
    QTreeWidget* const list = makeList({QObject::tr("Block"), QObject::tr("Kind")});
    for (const host::Block& block : data.blocks) {
        new QTreeWidgetItem(list, {toQt(block.name), kindOf(block)});
    }
    return list;
}

QString filesOf(const host::DataSet& data) {
    constexpr std::size_t most = 4;
    QStringList files;
    for (std::size_t i = 0; i < std::min(data.files.size(), most); ++i) {
        files.append(toQt(data.files[i]));
    }
    if (data.files.size() > most) {
        files.append(QObject::tr("and %1 more").arg(data.files.size() - most));
    }
    return files.join(QLatin1Char('\n'));
}

} // namespace

DataInformation::DataInformation(const host::DataSet& described, QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(tr("Data Information"));
    auto* const form = new QFormLayout;
    const auto addRow = [form](const QString& name, const QString& text) {
        auto* const label = new QLabel(text);
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        form->addRow(name, label);
    };
    addRow(tr("Files"), filesOf(described));
    addRow(tr("Times"), timesOf(described));
    addRow(tr("Extent"), boxOf(described));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->addLayout(form);
    for (QTreeWidget* const list : {variableList(described), blockList(described)}) {
        for (int i = 0; i < list->columnCount(); ++i) {
            list->resizeColumnToContents(i);
        }
        column->addWidget(list, 1);
    }
    column->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 80, fontMetrics().height() * 30);
}

} // namespace corvane::gui
