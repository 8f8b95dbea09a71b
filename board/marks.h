#pragma once
// The two marks of playing without dragging, laid over the board without
// moving any of its controls: the highlight inside a picked piece and the
// keyboard's ring around a slot, cell or command. Each is dark and light at
// once, so it shows on every level colour, region colour and picture.
#include <QWidget>
#include <optional>

namespace board {

class Mark : public QWidget {
  public:
    enum class Kind { Pick, Ring };
    Mark(QWidget* board, Kind kind);

    // Around a control's rectangle in the board's pixels; nothing hides it.
    void showAround(const std::optional<QRect>& control);
    // The control it marks, while it is shown.
    std::optional<QRect> marked() const;
    // Back in front after a piece was raised over it.
    void keepOnTop();

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    int outside() const;  // how far the mark reaches outside the control
    Kind kind_;
};

}  // namespace board
