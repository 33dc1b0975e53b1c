#include "helpers/HouseTest.h"

#include "ui_EveryControl.h"

#include <QApplication>
#include <QBuffer>
#include <QDesignerComponents>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerFormWindowManagerInterface>
#include <QDesignerIntegration>
#include <QDesignerPropertyEditorInterface>
#include <QFile>
#include <QFileInfo>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QPointer>
#include <QRegularExpression>
#include <QSet>
#include <QStyleFactory>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>

namespace {

using Widget = std::unique_ptr<QWidget>;

// Exported, and yet on no form.
const QSet<QString> notOnForms = {
    // Styles and their factory are no widgets.
    "CBlueScrollBarStyle", "CC4StyleFactory", "CCommonControlStyle", "CDropDownScrollBarStyle", "CTBWStyle",
    // Windows of their own.
    "CMenuEx", "CMessageBoxEx", "CProgressBarDialogEx", "CProgressDialogEx", "CRainbowProgressDialog"};

QList<QDesignerCustomWidgetInterface *> offered()
{
    static QPluginLoader loader(QStringLiteral(PLUGIN));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    return collection != nullptr ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface *>();
}

QStringList names()
{
    QStringList list;
    for (const QDesignerCustomWidgetInterface *widget : offered())
        list.append(widget->name());
    return list;
}

void addRowPerControl()
{
    QTest::addColumn<QString>("className");
    for (const QString &name : names())
        QTest::newRow(qPrintable(name)) << name;
}

QDesignerCustomWidgetInterface *description(const QString &className)
{
    for (QDesignerCustomWidgetInterface *widget : offered())
        if (widget->name() == className)
            return widget;
    return nullptr;
}

Widget load(QIODevice &device)
{
    QUiLoader loader;
    loader.addPluginPath(QStringLiteral(PLUGIN_DIR));
    return Widget(device.open(QIODevice::ReadOnly) ? loader.load(&device) : nullptr);
}

Widget loadForm()
{
    QFile file(QStringLiteral(FORM));
    return load(file);
}

Widget compiledForm()
{
    auto form = std::make_unique<QWidget>();
    Ui::EveryControl ui;
    ui.setupUi(form.get());
    return form;
}

QtMessageHandler houseHandler = nullptr;

// Designer makes one of every standard widget, also of those that the window system of the tests cannot show.
void withoutOpenGL(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QLatin1String("QOpenGLWidget is not supported")))
        houseHandler(type, context, message);
}

/** The form as Qt Designer writes it after it has read it. */
QByteArray savedByDesigner()
{
    QFile file(QStringLiteral(FORM));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    // Our plugin alone: those of the machine have warnings of their own.
    QCoreApplication::setLibraryPaths({QFileInfo(QStringLiteral(PLUGIN_DIR)).path()});
    const std::unique_ptr<QDesignerFormEditorInterface> designer(QDesignerComponents::createFormEditor(nullptr));
    const Widget editor(
        QDesignerComponents::createPropertyEditor(designer.get(), nullptr)); // the integration needs one
    designer->setPropertyEditor(static_cast<QDesignerPropertyEditorInterface *>(editor.get()));
    new QDesignerIntegration(designer.get(), designer.get());
    QDesignerComponents::initializePlugins(designer.get());
    QDesignerFormWindowInterface *window = designer->formWindowManager()->createFormWindow();
    window->setFileName(QStringLiteral(FORM));
    const bool isRead = window->setContents(&file);
    return isRead ? window->contents().toUtf8() : QByteArray();
}

QWidget *control(const Widget &form, const QString &className)
{
    for (QWidget *child : form->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        if (QLatin1String(child->metaObject()->className()) == className)
            return child;
    return nullptr;
}

const QStringList inherited = {"text", "minimum", "maximum", "value", "checked", "orientation", "count"};

/** What shows in Designer's editor: the class's own properties, and of its bases text, range and state. */
QStringList lookRangeAndText(const QWidget *widget)
{
    const QMetaObject *meta = widget->metaObject();
    QStringList list;
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QString name = QLatin1String(property.name());
        if (property.isDesignable() && (i >= meta->propertyOffset() || inherited.contains(name)))
            list.append(name);
    }
    return list;
}

/** As a text to compare. */
QString valueOf(const QWidget *widget, const QString &property)
{
    const QVariant value = widget->property(qPrintable(property));
    if (value.userType() == QMetaType::QPixmap) {
        const auto pixmap = value.value<QPixmap>();
        return QStringLiteral("%1 x %2").arg(pixmap.width()).arg(pixmap.height());
    }
    if (value.userType() == QMetaType::QFont)
        return QString::number(value.value<QFont>().pointSize());
    return value.toString();
}

} // namespace

class tst_DesignerPlugin : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void tableAgreesWithWhatIsExported();
    void describesItself_data() { addRowPerControl(); }
    void describesItself();
    void formLoadsAsItCompiles_data() { addRowPerControl(); }
    void formLoadsAsItCompiles();
    void imagesOfZoomSliderGetTheirRoom();
    void fontAndDefaultReachTheButton();
    // The last ones: they make the plugin believe for good that it is in Qt Designer.
    void designerKeepsItsStyle();
    void designerKeepsEverything();
};

void tst_DesignerPlugin::tableAgreesWithWhatIsExported()
{
    QFile recipe(QStringLiteral(LIBRARY_RECIPE));
    QVERIFY(recipe.open(QIODevice::ReadOnly));
    static const QRegularExpression exported(QStringLiteral(R"(\nzel_public_class\((C\w+) )"));
    auto matches = exported.globalMatch(QString::fromUtf8(recipe.readAll()));
    QSet<QString> wanted;
    while (matches.hasNext())
        wanted.insert(matches.next().captured(1));
    QVERIFY(wanted.contains(QStringLiteral("CButtonEx")));
    wanted -= notOnForms;
    const QStringList list = names();
    QCOMPARE(QSet<QString>(list.begin(), list.end()), wanted);
    QCOMPARE(list.size(), wanted.size());
}

void tst_DesignerPlugin::describesItself()
{
    QFETCH(QString, className);
    QDesignerCustomWidgetInterface *widget = description(className);
    QCOMPARE(widget->group(), QStringLiteral("ZelCmnCtrl03"));
    QCOMPARE(widget->includeFile(), QStringLiteral("<ZelCmnCtrl03/%1>").arg(className));
    QCOMPARE(widget->icon().actualSize(QSize(22, 22)), QSize(22, 22));
    QVERIFY(!widget->toolTip().isEmpty());
    QWidget parent;
    const QWidget *made = widget->createWidget(&parent);
    QCOMPARE(QLatin1String(made->metaObject()->className()), QLatin1String(className.toLatin1()));
    QCOMPARE(made->parentWidget(), &parent);

    // What Designer puts on a form, in a size that the control takes.
    QBuffer xml;
    xml.setData(widget->domXml().toUtf8());
    QVERIFY(widget->domXml().contains(QStringLiteral("class=\"%1\"").arg(className)));
    const Widget fresh = load(xml);
    QVERIFY(fresh != nullptr);
    QCOMPARE(QLatin1String(fresh->metaObject()->className()), QLatin1String(className.toLatin1()));
    QVERIFY(fresh->width() >= fresh->minimumSizeHint().width());
    QVERIFY(fresh->height() >= qMin(fresh->sizeHint().height(), fresh->maximumHeight()));
    QCOMPARE(fresh->size(), fresh->size().boundedTo(fresh->maximumSize()).expandedTo(fresh->minimumSize()));
}

void tst_DesignerPlugin::formLoadsAsItCompiles()
{
    QFETCH(QString, className);
    const Widget loaded = loadForm();
    const Widget compiled = compiledForm();
    const QWidget *control1 = control(loaded, className);
    const QWidget *control2 = control(compiled, className);
    QVERIFY(control1 != nullptr && control2 != nullptr);
    QWidget parent;
    const QWidget *fresh = description(className)->createWidget(&parent);
    const int ownBegin = fresh->metaObject()->propertyOffset();
    for (const QString &property : lookRangeAndText(fresh)) {
        QVERIFY2(valueOf(control1, property) == valueOf(control2, property), qPrintable(property));
        // The form gives every property of the class another value than it has by itself.
        const bool isOwn = fresh->metaObject()->indexOfProperty(qPrintable(property)) >= ownBegin;
        QVERIFY2(!isOwn || valueOf(control1, property) != valueOf(fresh, property), qPrintable(property));
    }
}

void tst_DesignerPlugin::imagesOfZoomSliderGetTheirRoom()
{
    const Widget form = loadForm();
    QWidget *slider = control(form, QStringLiteral("CZoomSlider"));
    const QSize wanted(10, 10); // the image and its margin
    QCOMPARE(slider->findChild<QWidget *>(QStringLiteral("ZoomIn"))->maximumSize(), wanted);
    QCOMPARE(slider->findChild<QWidget *>(QStringLiteral("ZoomOut"))->maximumSize(), wanted);
}

void tst_DesignerPlugin::fontAndDefaultReachTheButton()
{
    const Widget form = loadForm();
    const auto *button = static_cast<CButtonEx *>(control(form, QStringLiteral("CButtonEx")));
    QCOMPARE(button->font().pointSize(), 15);
    QVERIFY(button->isDefault());
    QCOMPARE(button->buttonStyle(), CButtonEx::BSEX_Tray);
    QCOMPARE(button->getButtonStyle(), QStringLiteral("BSEX_Tray"));
}

void tst_DesignerPlugin::designerKeepsItsStyle()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("windows")));
    const QPointer<QStyle> designers = QApplication::style();
    const QPalette palette = QApplication::palette();
    for (QDesignerCustomWidgetInterface *widget : offered())
        widget->initialize(nullptr);
    QWidget form;
    for (QDesignerCustomWidgetInterface *widget : offered())
        widget->createWidget(&form);
    QVERIFY(!designers.isNull());
    QCOMPARE(QApplication::style(), designers.data());
    QVERIFY(QApplication::palette() == palette);
    for (const char *name : {"CButtonEx", "CSliderEx", "CCheckBoxEx", "CListBoxEx"}) {
        const QWidget *control = description(QLatin1String(name))->createWidget(&form);
        QVERIFY2(control->style()->inherits("CCommonControlStyle"), name);
    }
    const QWidget *zoom = description(QStringLiteral("CZoomSlider"))->createWidget(&form);
    QVERIFY(zoom->findChild<QWidget *>(QStringLiteral("Slider"))->style()->inherits("CCommonControlStyle"));
    // A preview in another style must not take the house style away from the controls.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    form.grab();
    QVERIFY(zoom->style()->inherits("CCommonControlStyle"));
}

void tst_DesignerPlugin::designerKeepsEverything()
{
    houseHandler = qInstallMessageHandler(withoutOpenGL);
    QBuffer saved;
    saved.setData(savedByDesigner());
    qInstallMessageHandler(houseHandler);
    const Widget before = loadForm();
    const Widget after = load(saved);
    QVERIFY(after != nullptr);
    for (const QString &className : names()) {
        const QWidget *wanted = control(before, className);
        const QWidget *found = control(after, className);
        QVERIFY2(found != nullptr, qPrintable(className));
        for (const QString &property : lookRangeAndText(wanted))
            QVERIFY2(valueOf(found, property) == valueOf(wanted, property), qPrintable(className + property));
        const QString header = QStringLiteral("<header location=\"global\">ZelCmnCtrl03/%1</header>").arg(className);
        QVERIFY2(saved.data().contains(header.toUtf8()), qPrintable(className));
    }
}

HOUSE_TEST_MAIN(tst_DesignerPlugin)
#include "tst_DesignerPlugin.moc"
