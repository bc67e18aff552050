#include "host/gui/widgets/PlainText.h"

#include "host/gui/base/QtText.h"

#include <QTextDocument>

namespace corvane::gui {

QString withoutMnemonics(const std::string& text) {
    return toQt(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString plainToolTip(const std::string& text) {
    const QString plain = toQt(text);
    return Qt::mightBeRichText(plain) ? Qt::convertFromPlainText(plain) : plain;
}

QString withoutAmpersands(const QString& title) {
    QString plain;
    for (qsizetype at = 0; at < title.size(); ++at) {
        if (title[at] == QLatin1Char('&') && ++at == title.size()) {
            break;
        }
        plain += title[at];
    }
    return plain;
}

} // namespace corvane::gui
