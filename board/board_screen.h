#pragma once
// A board screen: one design in three sizes ("jigsaw", "jigsaw5x5",
// "jigsaw6x6"), laid out from its BoardLayout. The screen only shows the game
// and forwards events; every rule of play lives in engine::Game, which reaches
// the controls through the BoardView operations below.
#include <optional>
#include <vector>

#include "board/board_layout.h"
#include "engine/board_view.h"
#include "engine/focus_ring.h"
#include "engine/game.h"
#include "engine/picking.h"
#include "engine/random_source.h"
#include "platform/control_array.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/timer.h"

namespace board {

class Mark;

class Board : public platform::Form, public engine::BoardView {
  public:
    explicit Board(const BoardLayout& layout);

    const BoardLayout& layout() const { return layout_; }
    engine::Game& game() { return game_; }
    const engine::Game& game() const { return game_; }
    const engine::Picking& picking() const { return picking_; }
    const engine::FocusRing& ring() const { return ring_; }
    // The marks of playing without dragging, while shown: around the picked
    // piece and around what the keyboard's ring stands on (window pixels).
    std::optional<QRect> pickMarked() const;
    std::optional<QRect> ringMarked() const;

    // Screen events.
    void Form_Load() override;
    void Form_MouseMove(int button, int shift, float x, float y) override;
    void Form_QueryUnload() override;  // closing the window is "Exit"
    void Image2_MouseDown(int index, int button, int shift, float x, float y);
    void Image2_MouseMove(int index, int button, int shift, float x, float y);
    void Image2_MouseUp(int index, int button, int shift, float x, float y);
    void Label3_MouseMove(int index, int button, int shift, float x, float y);
    void Label3_Click(int index);
    void Image4_Click(int index);
    void Timer1_Timer();
    void Timer2_Timer();

    // The picture-set procedures.
    void seticons();
    void setpicture();

    // Controls, named and numbered as designed.
    platform::ControlArray<platform::Shape> Shape1{"Shape1"};
    platform::ControlArray<platform::PictureBox> Image1{"Image1"};  // cells
    platform::ControlArray<platform::PictureBox> Image2{"Image2"};  // pieces
    platform::ControlArray<platform::PictureBox> Image3{"Image3"};  // tray slots
    platform::ControlArray<platform::PictureBox> Image4{"Image4"};  // thumbnails
    platform::ControlArray<platform::PictureBox> Image5{"Image5"};  // given markers
    platform::PictureBox* Image6 = nullptr;                         // logo (5x5, 6x6)
    platform::ControlArray<platform::Label> Label1{"Label1"};
    platform::ControlArray<platform::Label> Label2{"Label2"};
    platform::ControlArray<platform::Label> Label3{"Label3"};
    platform::Label* Label7 = nullptr;
    platform::Timer Timer1;  // the game clock
    platform::Timer Timer2;  // the delay before the answer check

    // Members of the board's game besides the engine's.
    int pictureset = 0;
    int iconson = 0;

    // engine::BoardView
    float left(engine::Pic pic, int index) const override;
    float top(engine::Pic pic, int index) const override;
    float width(engine::Pic pic, int index) const override;
    float height(engine::Pic pic, int index) const override;
    void setLeft(engine::Pic pic, int index, float left) override;
    void setTop(engine::Pic pic, int index, float top) override;
    void setVisible(engine::Pic pic, int index, bool visible) override;
    void setEnabled(engine::Pic pic, int index, bool enabled) override;
    void loadPicture(engine::Pic pic, int index, const std::string& path) override;
    void bringToFront(engine::Pic pic, int index) override;
    std::string caption(engine::Lab label) const override;
    void setCaption(engine::Lab label, const std::string& text) override;
    void setVisible(engine::Lab label, bool visible) override;
    void setTimerEnabled(engine::Tmr timer, bool enabled) override;
    void playwav(const std::string& path) override;
    void checkhighscore() override;

  protected:
    // Playing without dragging (hand_play.cpp).
    void keyPressEvent(QKeyEvent* e) override;
    bool focusNextPrevChild(bool next) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* e) override;

  private:
    void createControls();
    void createLabels();
    void createPictures();
    void wireEvents();

    platform::PictureBox& picture(engine::Pic pic, int index) const;
    platform::Label& label(engine::Lab label) const;
    engine::Options options() const;
    void play(const char* path) const;  // only when "Play Sound" is on

    // The commands (commands.cpp).
    void exitBoard();
    void newPuzzle();
    void showSolution();
    void switchPanel();
    void startNewGame();  // setpicture, setsolution, setstart

    // Playing without dragging (hand_play.cpp): clicks and keys become the
    // engine's picks and drops, commands run as if clicked.
    void chooseCell(int cell);
    void chooseSlot(int slot);
    void afterChoice(engine::Picking::Choice choice);
    void chooseAtRing();
    void runCommand(int command);  // a Label3 index, or kThumbnail + an Image4 index
    std::vector<int> keyboardCommands() const;
    std::optional<QRect> ringTarget() const;
    void showMarks();
    void followRingWithFocus();
    // For assistive technology (accessible_board.cpp): names, decoration,
    // and the ring as the focus.
    void describeControls();
    QString spokenPicture(int piece) const;
    QWidget* ringControl() const;
    void announceRing();
    static engine::RingLayout ringLayout(const BoardLayout& layout);
    static constexpr int kThumbnail = 100;

    const BoardLayout& layout_;
    engine::ClockRandom random_;
    engine::Game game_;
    engine::Picking picking_;
    engine::FocusRing ring_;
    Mark* pickMark_ = nullptr;
    Mark* ringMark_ = nullptr;
    QWidget* announced_ = nullptr;  // what the ring last stood on, as told to a screen reader
    QString announcedName_;
};

}  // namespace board
