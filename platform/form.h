#pragma once
// A screen of the game and the rules by which screens live: each exists at
// most once; using a screen that is not loaded loads it (its Form_Load runs);
// unloading discards it with every control value, so the next use starts
// from the designed state; shown screens stack modeless, the last on top.
#include <QWidget>
#include <functional>
#include <string>

namespace platform {

enum class FormKind {
    FullSize,  // borderless, sized and centred by the game (1024 x 768 pixels)
    Fixed,     // a small framed window of a fixed client size
    Backdrop,  // borderless, covering the whole screen
    Overlay,   // borderless, laid over a full-size screen
};

class Form : public QWidget {
    Q_OBJECT
  public:
    Form(std::string name, FormKind kind);
    const std::string& screenName() const { return name_; }
    FormKind kind() const { return kind_; }

    // The screen's start-up; runs once per load, before it is shown.
    virtual void Form_Load() {}
    // The pointer moves over the window's own background.
    virtual void Form_MouseMove(int button, int shift, float x, float y);
    // The window manager asks to close the window: by default the game ends.
    virtual void Form_QueryUnload();

    // Outer geometry in twips (the window frame included).
    float Left() const;
    float Top() const;
    float Width() const;
    float Height() const;
    void setLeft(float twips);
    void setTop(float twips);
    void setOuterSize(float widthTwips, float heightTwips);
    void setClientSize(float widthTwips, float heightTwips);

    void setBackColor(const QColor& c);
    QColor BackColor() const { return back_; }

    // The window's pointer picture: a cursor file, or none for the default.
    void setMouseIcon(const std::string& cursorPath);
    void clearMouseIcon();
    bool hasMouseIcon() const { return hasIcon_; }

    void Show();  // show, on top of the others, and take the focus

  protected:
    void mouseMoveEvent(QMouseEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

  private:
    std::string name_;
    FormKind kind_;
    QColor back_;
    bool hasIcon_ = false;
    bool fontsSettled_ = false;
    float left_ = 0, top_ = 0;  // twips as last written, so reads are exact
};

namespace screens {

using Factory = std::function<Form*()>;
void registerScreen(const std::string& name, Factory factory);
bool isRegistered(const std::string& name);

// The screen, loading it (running Form_Load) when it is not loaded.
Form& get(const std::string& name);
template <class T>
T& get(const std::string& name) {
    return static_cast<T&>(get(name));
}
// The screen if loaded, else nullptr; never loads.
Form* loaded(const std::string& name);
bool isLoaded(const std::string& name);

void show(const std::string& name);
void hide(const std::string& name);
void unload(const std::string& name);
// Ends the game: every screen goes at once, with no further handling.
void endProgram();
// Called instead of quitting the application when endProgram runs (tests).
void setEndHandler(std::function<void()> handler);

}  // namespace screens
}  // namespace platform
