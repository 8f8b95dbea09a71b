#pragma once
// A screen of the game and the rules by which screens live: each exists at
// most once; using a screen that is not loaded loads it (its Form_Load runs);
// unloading discards it with every control value, so the next use starts
// from the designed state; shown screens stack modeless, the last on top.
#include <QWidget>
#include <functional>
#include <vector>

#include "tables/screens.h"

namespace platform {

enum class FormKind {
    FullSize,  // borderless, sized and centred by the game (1024 x 768 pixels)
    Fixed,     // a small framed window of a fixed client size
    Backdrop,  // borderless, covering the whole screen
    Overlay,   // laid over a full-size screen, with a thin border of its own
};

// The width of an overlay's own border: its client area is 150 twips narrower
// than a full-size screen, so with this border it covers that screen's width.
constexpr float kOverlayBorderTwips = 75.0f;

// Close requests from the desktop closer together than this are one close key
// held down (keys repeat after about half a second, then every few dozen ms).
constexpr int kCloseRepeatMs = 1000;

class Form : public QWidget {
    Q_OBJECT
  public:
    Form(tables::Screen screen, FormKind kind);
    tables::Screen screen() const { return screen_; }
    FormKind kind() const { return kind_; }

    // The screen's start-up; runs once per load, before it is shown.
    virtual void Form_Load() {}
    // The pointer moves over the window's own background.
    virtual void Form_MouseMove(int button, int shift, float x, float y);
    // The window manager asks to close the window (its close button, Alt+F4):
    // by default the game ends, as the title screen's "Exit" ends it. A
    // request repeated within kCloseRepeatMs (a held key) does not come here.
    virtual void Form_QueryUnload();

    // Where the screen's controls live: the window itself, or for an overlay
    // the area inside its border.
    QWidget* client() { return client_; }
    const QWidget* client() const { return client_; }

    // Outer geometry in twips (the window frame included).
    float Left() const;
    float Top() const;
    float Width() const;
    float Height() const;
    void setLeft(float twips);
    void setTop(float twips);
    void setOuterSize(float widthTwips, float heightTwips);
    void setClientSize(float widthTwips, float heightTwips);
    // Centres the outer window on the screen. A framed window is centred
    // again once the window manager has framed it, so its frame is counted.
    void centreOnScreen();

    void setBackColor(const QColor& c);
    QColor BackColor() const { return back_; }

    // The window's pointer picture: a cursor file, or none for the default.
    void setMouseIcon(const std::string& cursorPath);
    void clearMouseIcon();
    bool hasMouseIcon() const { return hasIcon_; }

    void Show();  // show, on top of the others, and take the focus

    // The screen's commands in reading order, the order Tab and Shift+Tab
    // walk them (a group of option buttons is one stop, its arrows move
    // within it). A screen shown with no command focused focuses the first
    // one the player can reach.
    void setCommandOrder(const std::vector<QWidget*>& commands);

    // The screen this one is kept above by the window manager while both are
    // shown, or nullptr. An overlay is kept above the full-size screen shown
    // last, the one it is laid over.
    Form* owner() const;

  protected:
    // The screen stays above the one `findOwner` gives when it is shown.
    void keepAbove(std::function<Form*()> findOwner);

    void mouseMoveEvent(QMouseEvent* e) override;
    void moveEvent(QMoveEvent* e) override;
    void changeEvent(QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

  private:
    QSize outerSize() const;
    void placeCentred();
    void tieToOwner();
    void focusFirstCommand();

    tables::Screen screen_;
    FormKind kind_;
    QWidget* client_ = this;
    QColor back_;
    bool hasIcon_ = false;
    bool fontsSettled_ = false;
    float left_ = 0, top_ = 0;  // twips as last written, so reads are exact
    std::function<Form*()> findOwner_;
    std::vector<QWidget*> commands_;
    bool centred_ = false;
    QSize centredWithFrame_;  // the frame counted when it was last centred
};

// Screens are known by their ids in the screens' table; the program registers
// a factory for each, so a screen shows another without linking its code.
namespace screens {

using Factory = std::function<Form*()>;
void registerScreen(tables::Screen screen, Factory factory);
bool isRegistered(tables::Screen screen);

// The screen, loading it (running Form_Load) when it is not loaded.
Form& get(tables::Screen screen);
template <class T>
T& get(tables::Screen screen) {
    return static_cast<T&>(get(screen));
}
// The screen if loaded, else nullptr; never loads.
Form* loaded(tables::Screen screen);
bool isLoaded(tables::Screen screen);

void show(tables::Screen screen);
void unload(tables::Screen screen);
// Ends the game: every screen goes at once, with no further handling.
void endProgram();
// Called instead of quitting the application when endProgram runs (tests).
void setEndHandler(std::function<void()> handler);

}  // namespace screens
}  // namespace platform
