#include "platform/form.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <map>

#include "platform/controls.h"
#include "platform/files.h"
#include "platform/twips.h"

namespace platform {

namespace {
Qt::WindowFlags flagsFor(FormKind kind) {
    switch (kind) {
        case FormKind::Fixed:
            return Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint;
        case FormKind::Backdrop:
            // A click on the backdrop must never lift it over the game.
            return Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnBottomHint |
                   Qt::WindowDoesNotAcceptFocus;
        case FormKind::FullSize:
        case FormKind::Overlay:
            return Qt::Window | Qt::FramelessWindowHint;
    }
    return Qt::Window;
}
}  // namespace

Form::Form(std::string name, FormKind kind)
    : QWidget(nullptr, flagsFor(kind)), name_(std::move(name)), kind_(kind) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowTitle(QStringLiteral(" "));
    setMouseTracking(true);
    setAutoFillBackground(true);
    setBackColor(Qt::white);
}

void Form::Form_MouseMove(int, int, float, float) {}

void Form::Form_QueryUnload() {
    screens::endProgram();
}

float Form::Left() const {
    return left_;
}
float Form::Top() const {
    return top_;
}
float Form::Width() const {
    return toTwips(frameGeometry().width());
}
float Form::Height() const {
    return toTwips(frameGeometry().height());
}

void Form::setLeft(float twips) {
    left_ = twips;
    move(toPixels(left_), toPixels(top_));
}

void Form::setTop(float twips) {
    top_ = twips;
    move(toPixels(left_), toPixels(top_));
}

void Form::setOuterSize(float widthTwips, float heightTwips) {
    const QSize frame = frameGeometry().size() - geometry().size();
    const QSize outer(toPixels(widthTwips), toPixels(heightTwips));
    setFixedSize(outer - frame);
}

void Form::setClientSize(float widthTwips, float heightTwips) {
    setFixedSize(toPixels(widthTwips), toPixels(heightTwips));
}

void Form::setBackColor(const QColor& c) {
    back_ = c;
    QPalette pal = palette();
    pal.setColor(QPalette::Window, c);
    setPalette(pal);
}

void Form::setMouseIcon(const std::string& cursorPath) {
    setCursor(loadCursor(cursorPath));
    hasIcon_ = true;
}

void Form::clearMouseIcon() {
    if (!hasIcon_) return;
    unsetCursor();
    hasIcon_ = false;
}

void Form::Show() {
    // An overlay belongs to the screen it is laid over (the one in use), so a
    // window manager keeps it above that screen when the player clicks there.
    if (kind_ == FormKind::Overlay && !isVisible()) {
        winId();  // makes the native window, so it can have a parent window
        QWindow* over = QGuiApplication::focusWindow();
        if (over && over != windowHandle()) windowHandle()->setTransientParent(over);
    }
    show();
    if (!fontsSettled_) {
        settleFonts(*this);
        fontsSettled_ = true;
    }
    // The offscreen platform used by the tests has no stacking to change.
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) raise();
    if (!(windowFlags() & Qt::WindowDoesNotAcceptFocus)) activateWindow();
}

void Form::mouseMoveEvent(QMouseEvent* e) {
    Form_MouseMove(buttonState(e->buttons()), shiftState(e->modifiers()),
                   toTwips(e->position().x()), toTwips(e->position().y()));
}

void Form::closeEvent(QCloseEvent* e) {
    e->ignore();
    Form_QueryUnload();
}

namespace screens {
namespace {
struct Registry {
    std::map<std::string, Factory> factories;
    std::map<std::string, Form*> loaded;
    std::function<void()> endHandler;
};
Registry& registry() {
    static Registry r;
    return r;
}
}  // namespace

void registerScreen(const std::string& name, Factory factory) {
    registry().factories[name] = std::move(factory);
}

bool isRegistered(const std::string& name) {
    return registry().factories.count(name) != 0;
}

Form& get(const std::string& name) {
    auto& r = registry();
    if (auto it = r.loaded.find(name); it != r.loaded.end()) return *it->second;
    auto factory = r.factories.find(name);
    if (factory == r.factories.end())
        throw std::logic_error("screen " + name + " is not part of this program");
    Form* form = factory->second();
    // Registered before its start-up runs, so the start-up can use itself.
    r.loaded[name] = form;
    form->Form_Load();
    return *form;
}

Form* loaded(const std::string& name) {
    auto it = registry().loaded.find(name);
    return it == registry().loaded.end() ? nullptr : it->second;
}

bool isLoaded(const std::string& name) {
    return loaded(name) != nullptr;
}

void show(const std::string& name) {
    get(name).Show();
}

void hide(const std::string& name) {
    if (Form* f = loaded(name)) f->hide();
}

void unload(const std::string& name) {
    auto& r = registry();
    auto it = r.loaded.find(name);
    if (it == r.loaded.end()) return;
    Form* form = it->second;
    r.loaded.erase(it);
    form->hide();
    // Its timers stop now; the widgets go once the current event is handled,
    // since the handler that unloads a screen may be one of its own.
    for (QTimer* t : form->findChildren<QTimer*>()) t->stop();
    form->deleteLater();
}

void endProgram() {
    auto& r = registry();
    while (!r.loaded.empty()) unload(r.loaded.begin()->first);
    if (r.endHandler)
        r.endHandler();
    else
        QCoreApplication::quit();
}

void setEndHandler(std::function<void()> handler) {
    registry().endHandler = std::move(handler);
}

}  // namespace screens
}  // namespace platform
