#pragma once
// The controls a screen is built from, each placed in twips. A control keeps
// its own single-precision twips rectangle (the pixels are derived from it),
// so reading back a position gives exactly what was written.
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QRadioButton>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>

#include "platform/twips.h"

class QKeyEvent;
class QMouseEvent;
class QPainter;

namespace platform {

// Colours are written &H00BBGGRR (red in the low byte).
QColor bgr(std::uint32_t value);

// A font by its design name and size in points. Faces this desktop lacks are
// replaced by close ones (Arial by Liberation Sans, the rounded and Tahoma
// faces by sans faces of the same weight).
QFont designFont(const QString& family, double points, bool bold);

// Gives each control of a window the first face of its font's list that
// this desktop has. Asking for a face that is not installed, or for a list
// of faces, makes the font system search every font for the closest ones;
// the game's own substitutes are just as good and cost nothing. Done once a
// window is shown (mapped): the font list is read then, just before the
// first paint needs it anyway.
void settleFonts(QWidget& window);

// Button state as the handlers see it: 1 left, 2 right, 4 middle; shift 1,
// ctrl 2, alt 4. X and Y are twips relative to the control.
struct MouseHandlers {
    std::function<void(int button, int shift, float x, float y)> mouseDown;
    std::function<void(int button, int shift, float x, float y)> mouseMove;
    std::function<void(int button, int shift, float x, float y)> mouseUp;
    std::function<void()> click;
};

int buttonState(Qt::MouseButtons buttons);
int shiftState(Qt::KeyboardModifiers modifiers);

// A double-click is one click, on every control of every screen: its second
// press and the release after it reach nothing. Only when that press, held,
// drags a control that takes presses of its own (a piece) does the control
// get it, late, and the drag after it (controls_pointer.cpp). Every control
// turns the rule on for the whole program when it is made.
void keepDoubleClicksSingle();

// What pictures and labels do with the pointer, as their handlers see it.
class PointerTarget {
  public:
    virtual ~PointerTarget() = default;
    MouseHandlers on;
};

// Twips placement shared by every kind of control.
template <class Widget>
class Placed : public Widget {
  public:
    explicit Placed(QWidget* parent) : Widget(parent) { keepDoubleClicksSingle(); }

    float Left() const { return left_; }
    float Top() const { return top_; }
    float Width() const { return width_; }
    float Height() const { return height_; }
    void setLeft(float v) {
        left_ = v;
        place();
    }
    void setTop(float v) {
        top_ = v;
        place();
    }
    void setWidth(float v) {
        width_ = v;
        place();
    }
    void setHeight(float v) {
        height_ = v;
        place();
    }
    void moveTo(float left, float top) {
        left_ = left;
        top_ = top;
        place();
    }
    void setBounds(float left, float top, float width, float height) {
        left_ = left;
        top_ = top;
        width_ = width;
        height_ = height;
        place();
    }
    bool Visible() const { return !this->isHidden(); }
    bool Enabled() const { return this->isEnabled(); }

  private:
    void place() {
        const int x = toPixels(left_), y = toPixels(top_);
        this->setGeometry(x, y, toPixels(left_ + width_) - x, toPixels(top_ + height_) - y);
    }
    float left_ = 0, top_ = 0, width_ = 0, height_ = 0;
};

// Placement plus the pointer events of pictures and labels.
template <class Widget>
class Clickable : public Placed<Widget>, public PointerTarget {
  public:
    explicit Clickable(QWidget* parent) : Placed<Widget>(parent) { this->setMouseTracking(true); }

  protected:
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
};

// A picture box: an optional picture stretched over the control and an
// optional thin frame. Cells and tray slots are frames without a picture.
class PictureBox : public Clickable<QWidget> {
  public:
    explicit PictureBox(QWidget* parent) : Clickable<QWidget>(parent) {}
    void loadPicture(const std::string& relativePath);  // ends the game if unreadable
    void setPicture(const QPixmap& picture);
    const QPixmap& picture() const { return picture_; }
    void setFramed(bool framed);
    void setFrameColor(const QColor& color);
    bool framed() const { return framed_; }
    // A hidden copy in the same parent: size, picture and frame, for control
    // arrays that grow at run time.
    PictureBox* cloneHidden() const;

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    QPixmap picture_;
    bool framed_ = false;
    QColor frameColor_ = Qt::black;
};

struct LabelLook {
    QColor foreColor = Qt::black;
    QColor backColor = Qt::white;
    bool transparent = false;
    bool framed = false;
    Qt::Alignment alignment = Qt::AlignHCenter;
    QFont font;
    bool wordWrap = false;
};

// How a command label gets the keyboard's focus: by Tab like any control,
// or only when its screen hands it over (a board's ring walks its commands).
enum class CommandFocus { ByTab, GivenByScreen };

class Label : public Clickable<QLabel> {
  public:
    explicit Label(QWidget* parent) : Clickable<QLabel>(parent) {}
    void setLook(const LabelLook& look);
    // The caption is the English text; the label shows its translation.
    void setCaption(const std::string& text);
    // A caption whose shown form the caller has put together itself (a
    // translated pattern with a number filled in).
    void setCaption(const std::string& text, const QString& shown);
    std::string Caption() const;
    void setForeColor(const QColor& c);
    void setBackColor(const QColor& c);
    QColor BackColor() const { return look_.backColor; }

    // Makes the label a command the keyboard and assistive technology can
    // use as well as the pointer: with the focus, Space or Enter run
    // on.click; a focus taken by Tab shows as a band just inside the label's
    // edge, so nothing moves or changes size; screen readers see a push
    // button named by the caption as shown, which they can press, with the
    // description given, if any.
    void makeCommand(CommandFocus focus = CommandFocus::ByTab,
                     std::function<QString()> description = {});
    bool isCommand() const { return command_; }

  protected:
    void keyPressEvent(QKeyEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

  private:
    LabelLook look_;
    bool command_ = false;
    std::string caption_;
    QString shown_;  // what setCaption showed; a text set otherwise is its own caption
};

// The focus band of command labels: a light line between two dark ones, just
// inside `outer`, so it shows on black, on the level colours and on white.
void drawFocusBand(QPainter& painter, const QRect& outer);

// A filled rectangle (the coloured regions behind a board's grid).
class Shape : public Placed<QWidget> {
  public:
    Shape(QWidget* parent, const QColor& fill);

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    QColor fill_;
};

// A container whose children are placed relative to it.
class Frame : public Placed<QFrame> {
  public:
    explicit Frame(QWidget* parent);
    void setBackColor(const QColor& c);
    QColor BackColor() const { return back_; }

  private:
    QColor back_;
};

class OptionButton : public Placed<QRadioButton> {
  public:
    explicit OptionButton(QWidget* parent);
    bool Value() const { return isChecked(); }
    void setValue(bool on) { setChecked(on); }
    // Runs when the button becomes selected, by the player or by code.
    std::function<void()> onSelect;

  protected:
    void keyPressEvent(QKeyEvent* e) override;  // Enter selects, as Space does
    void paintEvent(QPaintEvent* e) override;   // the focus band, as on commands
};

class CheckBox : public Placed<QCheckBox> {
  public:
    explicit CheckBox(QWidget* parent);
    int Value() const { return isChecked() ? 1 : 0; }
    void setValue(int v) { setChecked(v == 1); }
    // Runs on every change of the value, by the player or by code; a write
    // that leaves the value as it was does nothing.
    std::function<void()> onChange;

  protected:
    void keyPressEvent(QKeyEvent* e) override;  // Enter ticks or clears, as Space does
    void paintEvent(QPaintEvent* e) override;   // the focus band, as on commands
};

class TextBox : public Placed<QLineEdit> {
  public:
    explicit TextBox(QWidget* parent) : Placed<QLineEdit>(parent) {}
    std::string Text() const { return text().toStdString(); }
    // A limit in characters as the player sees them, where QLineEdit's own
    // maximum counts UTF-16 units (an emoji is two). Characters are counted
    // as code points: keyboards send accented letters whole (ë, not e and a
    // mark), and the saved names are capped the same way. A key or paste
    // that would go past the limit is refused.
    void setMaxCharacters(int most);
};

// Shared looks of the game's screens.
void styleText(QWidget& w, const QColor& fore, const QColor& back, const QFont& font);

}  // namespace platform

#include "platform/controls_impl.h"
