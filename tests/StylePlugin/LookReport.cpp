#include "LookReport.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCryptographicHash>
#include <QImage>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyle>
#include <QVBoxLayout>

namespace {

QImage pictureOfWidgets()
{
    QWidget form;
    auto *column = new QVBoxLayout(&form);
    column->addWidget(new QCheckBox(QStringLiteral("Check")));
    column->addWidget(new QComboBox);
    column->addWidget(new QSpinBox);
    column->addWidget(new QScrollBar(Qt::Horizontal));
    form.resize(200, 150);
    return form.grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

QString lookReport()
{
    QString report = QLatin1String(QApplication::style()->metaObject()->className()) + QLatin1Char('\n');
    const QPalette palette = QApplication::palette();
    for (const auto group : {QPalette::Disabled, QPalette::Active, QPalette::Inactive}) {
        for (int role = 0; role < QPalette::NColorRoles; ++role)
            report +=
                palette.color(group, static_cast<QPalette::ColorRole>(role)).name(QColor::HexArgb) + QLatin1Char(' ');
        report += QLatin1Char('\n');
    }
    const QImage picture = pictureOfWidgets();
    const QByteArray bits(reinterpret_cast<const char *>(picture.constBits()), static_cast<int>(picture.sizeInBytes()));
    return report + QLatin1String(QCryptographicHash::hash(bits, QCryptographicHash::Sha1).toHex()) + QLatin1Char('\n');
}
