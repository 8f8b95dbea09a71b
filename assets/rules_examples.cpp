// The rules screen's example boards: a real puzzle made by the game's own
// engine and its solution. A recording board stands in for the screen: it
// answers the engine's questions about cell and tray positions and notes
// where the engine puts pieces and which marker pictures it loads.
#include <map>

#include "canvas.h"
#include "catalogue.h"
#include "engine/game.h"
#include "markers.h"
#include "pictures.h"
#include "tables/geometry.h"
#include "tables/pictures.h"

namespace assets {

namespace {

using Geometry = tables::BoardGeometry;

class RecordingBoard : public engine::BoardView {
  public:
    // Every piece starts in its tray slot and every marker hidden off the
    // grid, as the board leaves them before a puzzle is set up.
    explicit RecordingBoard(const Geometry& g) : g_(g) {
        const int n = g.n;
        for (int k = 0; k < n * n; ++k) pieces_.push_back(home(k));
        markers_.assign(n * n, QPointF(0, 0));
        markerShown_.assign(n * n, false);
        markerPicture_.assign(n * n, g.markerPictures[0]);
    }

    float left(engine::Pic pic, int index) const override { return position(pic, index).x(); }
    float top(engine::Pic pic, int index) const override { return position(pic, index).y(); }
    float width(engine::Pic pic, int) const override {
        return pic == engine::Pic::Image5 ? g_.marker.width : g_.side;
    }
    float height(engine::Pic pic, int index) const override { return width(pic, index); }
    void setLeft(engine::Pic pic, int index, float left) override { slot(pic, index).setX(left); }
    void setTop(engine::Pic pic, int index, float top) override { slot(pic, index).setY(top); }
    void setVisible(engine::Pic pic, int index, bool visible) override {
        if (pic == engine::Pic::Image5) markerShown_[index] = visible;
    }
    void setEnabled(engine::Pic, int, bool) override {}
    void loadPicture(engine::Pic, int index, const std::string& path) override {
        markerPicture_[index] = path;
    }
    void bringToFront(engine::Pic, int) override {}
    std::string caption(engine::Lab label) const override {
        const auto found = captions_.find(label);
        return found == captions_.end() ? std::string() : found->second;
    }
    void setCaption(engine::Lab label, const std::string& text) override {
        captions_[label] = text;
    }
    void setVisible(engine::Lab, bool) override {}
    void setTimerEnabled(engine::Tmr, bool) override {}
    void playwav(const std::string&) override {}
    void checkhighscore() override {}

    QPointF cell(int index) const {
        const tables::Rect r = g_.cell(index % g_.n, index / g_.n);
        return QPointF(r.left, r.top);
    }
    const std::vector<QPointF>& pieces() const { return pieces_; }
    const std::vector<QPointF>& markers() const { return markers_; }
    bool markerShown(int index) const { return markerShown_[index]; }
    const std::string& markerPath(int index) const { return markerPicture_[index]; }

  private:
    QPointF home(int piece) const {
        const tables::Rect r = g_.home(piece);
        return QPointF(r.left, r.top);
    }
    QPointF position(engine::Pic pic, int index) const {
        switch (pic) {
            case engine::Pic::Image1:
                return cell(index);
            case engine::Pic::Image2:
                return pieces_[index];
            case engine::Pic::Image3:
                return home(index);
            case engine::Pic::Image5:
                return markers_[index];
        }
        return {};
    }
    QPointF& slot(engine::Pic pic, int index) {
        return pic == engine::Pic::Image5 ? markers_[index] : pieces_[index];
    }

    const Geometry& g_;
    std::vector<QPointF> pieces_, markers_;
    std::vector<bool> markerShown_;
    std::vector<std::string> markerPicture_;
    std::map<engine::Lab, std::string> captions_;
};

// The engine reseeds from the clock; the examples must come out the same on
// every build, so the reseeding is ignored and one fixed seed drives it all.
class FixedRandom : public engine::RandomSource {
  public:
    explicit FixedRandom(std::uint64_t seed) : inner_(seed) {}
    double next() override { return inner_.next(); }
    void seedFromClock() override {}

  private:
    engine::ClockRandom inner_;
};

// Each board's example is pictured with one of its own picture sets.
SquareDrawer symbolOf(int boardsize, int symbol) {
    const tables::SetKind kinds[] = {tables::SetKind::Shapes, tables::SetKind::Faces,
                                     tables::SetKind::Dice};
    return setPicture(kinds[boardsize], symbol - 1);
}

struct Example {
    std::vector<std::vector<std::int16_t>> solution;  // [x][y]
    std::vector<QPointF> pieces;                      // where the engine left each piece
    std::vector<QPointF> cells;
    std::vector<std::pair<QPointF, std::string>> markers;  // shown markers
};

Example makeExample(int boardsize) {
    RecordingBoard board(tables::boardGeometry(boardsize));
    FixedRandom random(20240 + boardsize);
    engine::Game game(boardsize, board, random);
    game.setsolution();
    engine::Options options;
    options.level = 1;
    game.setstart(options);
    Example example;
    example.solution = game.solution;
    example.pieces = board.pieces();
    const int n = tables::boardGeometry(boardsize).n;
    for (int k = 0; k < n * n; ++k) {
        example.cells.push_back(board.cell(k));
        if (board.markerShown(k))
            example.markers.push_back({board.markers()[k], board.markerPath(k)});
    }
    return example;
}

// Draws the board in twips: a view box just around the coloured regions.
void drawBoard(QPainter& painter, int boardsize, const Example& example, bool solved) {
    const Geometry& g = tables::boardGeometry(boardsize);
    const int n = g.n;
    const QRectF view(5460, 3900, 7560, 7560);
    painter.fillRect(QRectF(0, 0, 100, 100), QColor(250, 251, 255));
    painter.save();
    painter.scale(100 / view.width(), 100 / view.height());
    painter.translate(-view.topLeft());
    QPainterPath regions;
    for (const tables::ColouredRect& r : g.regions)
        regions.addRect(QRectF(r.rect.left, r.rect.top, r.rect.width, r.rect.height));
    softShadow(painter, regions, QPointF(40, 70), 90, QColor(0, 0, 0, 80));
    for (const tables::ColouredRect& r : g.regions)
        painter.fillRect(QRectF(r.rect.left, r.rect.top, r.rect.width, r.rect.height),
                         bgrColor(r.colour));
    auto picture = [&](QPointF at, double side, const SquareDrawer& draw) {
        painter.save();
        painter.translate(at);
        painter.scale(side / 100, side / 100);
        painter.setClipRect(QRectF(0, 0, 100, 100));
        draw(painter);
        painter.restore();
    };
    for (int k = 0; k < n * n; ++k) {
        const QRectF cell(example.cells[k], QSizeF(g.side, g.side));
        painter.fillRect(cell, QColor(255, 255, 255, 110));
        painter.setPen(QPen(QColor(255, 255, 255, 200), 18));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(cell);
    }
    if (solved) {
        for (int k = 0; k < n * n; ++k)
            picture(example.cells[k], g.side, symbolOf(boardsize, example.solution[k % n][k / n]));
    } else {
        // The puzzle shows the pieces the engine put exactly onto cells.
        for (size_t p = 0; p < example.pieces.size(); ++p) {
            for (const QPointF& cell : example.cells) {
                if (example.pieces[p] == cell)
                    picture(cell, g.side, symbolOf(boardsize, engine::pictureOfPiece(n, int(p))));
            }
        }
        for (const auto& [at, path] : example.markers)
            picture(at, g.marker.width, markerPicture(path));
    }
    painter.restore();
}

PictureFile exampleFile(const tables::ScreenPicture& file, int boardsize, bool solved) {
    const int pixels = tables::picturePixels(file.width);
    return {gameFilePath(file.path), pixels, pixels, [=] {
                const Example example = makeExample(boardsize);
                return paintSquare(pixels, [&](QPainter& painter) {
                    drawBoard(painter, boardsize, example, solved);
                });
            }};
}

}  // namespace

std::vector<PictureFile> rulesExampleFiles() {
    std::vector<PictureFile> files;
    for (int size = 0; size < tables::kBoardSizes; ++size) {
        files.push_back(exampleFile(tables::kRulesExamples[size].puzzle, size, false));
        files.push_back(exampleFile(tables::kRulesExamples[size].solution, size, true));
    }
    return files;
}

}  // namespace assets
