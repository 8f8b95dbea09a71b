#include "platform/form.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <array>
#include <optional>
#include <utility>

#include "platform/accessible.h"
#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/twips.h"

namespace platform {

namespace {
// The full-size screen shown last: an overlay lies over it.
std::optional<tables::Screen>& lastFullSizeShown() {
    static std::optional<tables::Screen> screen;
    return screen;
}

// The frame the window manager gave the last framed window. Every framed
// screen gets the same one, so the next is centred right before it is shown.
QSize& knownFrame() {
    static QSize frame;
    return frame;
}

// An overlay's border: the same shade as its "Continue" button.
const QColor kOverlayBorderColour = Qt::black;

Qt::WindowFlags flagsFor(FormKind kind) {
    switch (kind) {
        case FormKind::Fixed:
            return Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint;
        case FormKind::Backdrop:
            // A click on the backdrop must never lift it over the game.
            return Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnBottomHint |
                   Qt::WindowDoesNotAcceptFocus;
        case FormKind::Overlay:
            // A dialog, so that window managers read whose window it is and
            // keep it above that one.
            return Qt::Dialog | Qt::FramelessWindowHint;
        case FormKind::FullSize:
            return Qt::Window | Qt::FramelessWindowHint;
    }
    return Qt::Window;
}
}  // namespace

Form::Form(tables::Screen screen, FormKind kind)
    : QWidget(nullptr, flagsFor(kind)), screen_(screen), kind_(kind) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    // For debuggers and test tools.
    setObjectName(QString::fromLatin1(tables::screenName(screen_)));
    setWindowTitle(QStringLiteral(" "));
    setMouseTracking(true);
    setAutoFillBackground(true);
    setBackColor(Qt::white);
    if (kind_ == FormKind::Overlay) {
        client_ = new QWidget(this);
        client_->move(toPixels(kOverlayBorderTwips), toPixels(kOverlayBorderTwips));
        client_->setMouseTracking(true);
        keepAbove([] {
            const auto under = lastFullSizeShown();
            return under ? screens::loaded(*under) : nullptr;
        });
    }
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
    return toTwips(outerSize().width());
}
float Form::Height() const {
    return toTwips(outerSize().height());
}

// Until a framed window is framed, its outer size is that of the frame the
// last framed window got (none when it is the first).
QSize Form::outerSize() const {
    const QSize frame = frameGeometry().size() - size();
    if (kind_ == FormKind::Fixed && frame.isNull()) return size() + knownFrame();
    return frameGeometry().size();
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
    const QSize frame = outerSize() - size();
    const QSize outer(toPixels(widthTwips), toPixels(heightTwips));
    setFixedSize(outer - frame);
}

void Form::setClientSize(float widthTwips, float heightTwips) {
    const QSize inside(toPixels(widthTwips), toPixels(heightTwips));
    if (client_ == this) {
        setFixedSize(inside);
        return;
    }
    const int border = toPixels(kOverlayBorderTwips);
    client_->setFixedSize(inside);
    setFixedSize(inside + QSize(2 * border, 2 * border));
}

void Form::centreOnScreen() {
    centred_ = true;
    placeCentred();
}

// top = screen height / 2 - window height / 2; left likewise, by outer size.
void Form::placeCentred() {
    centredWithFrame_ = outerSize() - size();
    setTop(screenHeightTwips() / 2 - Height() / 2);
    setLeft(screenWidthTwips() / 2 - Width() / 2);
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

Form* Form::owner() const {
    Form* found = findOwner_ ? findOwner_() : nullptr;
    return found != this && found && found->isVisible() ? found : nullptr;
}

void Form::keepAbove(std::function<Form*()> findOwner) {
    findOwner_ = std::move(findOwner);
    // Window managers keep a dialog above the window it names as its owner
    // (WM_TRANSIENT_FOR); a plain window they stack as the player clicks.
    setWindowFlags((windowFlags() & ~Qt::WindowType_Mask) | Qt::Dialog);
}

// Told once per showing, before the window is mapped: the window manager
// reads the owner when the window appears.
void Form::tieToOwner() {
    if (!findOwner_) return;
    Form* over = owner();
    winId();  // the native window, so that it can name its owner
    if (over) over->winId();
    windowHandle()->setTransientParent(over ? over->windowHandle() : nullptr);
}

void Form::Show() {
    if (!isVisible()) tieToOwner();
    if (kind_ == FormKind::FullSize) lastFullSizeShown() = screen_;
    show();
    if (!fontsSettled_) {
        settleFonts(*this);
        fontsSettled_ = true;
    }
    raise();
    focusFirstCommand();
    if (!(windowFlags() & Qt::WindowDoesNotAcceptFocus)) activateWindow();
}

void Form::setCommandOrder(const std::vector<QWidget*>& commands) {
    commands_ = commands;
    for (std::size_t i = 1; i < commands.size(); ++i)
        QWidget::setTabOrder(commands[i - 1], commands[i]);
}

// Only a command Tab would stop at: of a group of option buttons, the
// selected one.
void Form::focusFirstCommand() {
    const QWidget* now = focusWidget();
    if (now && takesInput(*now)) return;
    for (QWidget* command : commands_) {
        const auto* button = qobject_cast<const QAbstractButton*>(command);
        const bool otherInGroup = button && button->autoExclusive() && !button->isChecked();
        if (takesInput(*command) && (command->focusPolicy() & Qt::TabFocus) && !otherInGroup) {
            command->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void Form::mouseMoveEvent(QMouseEvent* e) {
    Form_MouseMove(buttonState(e->buttons()), shiftState(e->modifiers()),
                   toTwips(e->position().x()), toTwips(e->position().y()));
}

// A framed window learns its frame only after the window manager framed it;
// that moves the window, so a centred one is centred again here.
void Form::moveEvent(QMoveEvent* e) {
    QWidget::moveEvent(e);
    if (kind_ != FormKind::Fixed || !isVisible()) return;
    const QSize frame = frameGeometry().size() - size();
    if (frame.isNull()) return;
    knownFrame() = frame;
    if (centred_ && frame != centredWithFrame_) placeCentred();
}

// None of the game's windows offers a way to minimise it, and a child has no
// task bar to find one again in; yet a window manager may still minimise a
// borderless screen (a key, its window menu). A shown screen comes back at
// once, when the window manager has finished.
void Form::changeEvent(QEvent* e) {
    QWidget::changeEvent(e);
    if (e->type() != QEvent::WindowStateChange || !(windowState() & Qt::WindowMinimized)) return;
    QTimer::singleShot(0, this, [this] {
        if (isVisible() && (windowState() & Qt::WindowMinimized))
            setWindowState(windowState() & ~Qt::WindowMinimized);
    });
}

void Form::paintEvent(QPaintEvent* e) {
    QWidget::paintEvent(e);
    if (client_ == this) return;
    QPainter painter(this);
    const int border = client_->x();
    painter.fillRect(rect(), kOverlayBorderColour);
    painter.fillRect(rect().adjusted(border, border, -border, -border), back_);
}

// A close key held down repeats, and each repeat would close the screen that
// came up under the one just closed: from the fastest times through the board
// and the options screen out of the game. So a close request from the desktop
// that follows the previous one within a moment is taken for that key still
// held, and ignored; one press closes one screen.
void Form::closeEvent(QCloseEvent* e) {
    e->ignore();
    static QElapsedTimer sinceLastRequest;
    const bool repeated = e->spontaneous() && sinceLastRequest.isValid() &&
                          sinceLastRequest.elapsed() < kCloseRepeatMs;
    if (e->spontaneous()) sinceLastRequest.start();
    if (!repeated) Form_QueryUnload();
}

namespace screens {
namespace {
struct Registry {
    std::array<Factory, tables::kScreenCount> factories;
    std::array<Form*, tables::kScreenCount> loaded{};
    std::function<void()> endHandler;
};
Registry& registry() {
    static Registry r;
    return r;
}
std::size_t slot(tables::Screen screen) {
    return static_cast<std::size_t>(screen);
}
}  // namespace

void registerScreen(tables::Screen screen, Factory factory) {
    registry().factories.at(slot(screen)) = std::move(factory);
}

bool isRegistered(tables::Screen screen) {
    return static_cast<bool>(registry().factories.at(slot(screen)));
}

Form& get(tables::Screen screen) {
    auto& r = registry();
    if (Form* form = r.loaded.at(slot(screen))) return *form;
    const Factory& factory = r.factories[slot(screen)];
    if (!factory)
        throw std::logic_error(std::string("screen ") + tables::screenName(screen) +
                               " is not part of this program");
    Form* form = factory();
    // Registered before its start-up runs, so the start-up can use itself.
    r.loaded[slot(screen)] = form;
    form->Form_Load();
    return *form;
}

Form* loaded(tables::Screen screen) {
    return registry().loaded.at(slot(screen));
}

bool isLoaded(tables::Screen screen) {
    return loaded(screen) != nullptr;
}

void show(tables::Screen screen) {
    get(screen).Show();
}

void unload(tables::Screen screen) {
    Form*& slotted = registry().loaded.at(slot(screen));
    Form* form = std::exchange(slotted, nullptr);
    if (!form) return;
    form->hide();
    // Its timers stop now; the widgets go once the current event is handled,
    // since the handler that unloads a screen may be one of its own.
    for (QTimer* t : form->findChildren<QTimer*>()) t->stop();
    form->deleteLater();
}

void endProgram() {
    auto& r = registry();
    for (const auto& entry : tables::kScreens) unload(entry.screen);
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
