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

namespace assets {

namespace {

struct Geometry {
    int boardsize;
    float pitch, side;  // cell pitch and side of cells and pieces, twips
    float markerSide;   // twips
    int trayColumns;    // tray slots per row
    float trayLeft, trayTop, trayPitch;
};

const Geometry kGeometry[] = {
    {0, 1800, 1560, 240, 8, 1080, 240, 1680},
    {1, 1440, 1140, 240, 11, 360, 120, 1320},
    {2, 1200, 1020, 150, 12, 480, 120, 1200},
};

// Board regions behind the grid: Left, Top, Width, Height in twips and colour.
struct RegionRect {
    float left, top, width, height;
    std::uint32_t bbggrr;
};

std::vector<RegionRect> regionRects(int boardsize) {
    switch (boardsize) {
        case 0:
            return {{5640, 4080, 3615, 3615, 0x00C00000},
                    {9240, 4080, 3615, 3615, 0x00C0C000},
                    {5640, 7680, 3615, 3615, 0x000080FF},
                    {9240, 7680, 3615, 3615, 0x0000C000}};
        case 1:
            return {{5640, 4080, 7155, 7155, 0x00C00000}};
        default:
            return {{5640, 4080, 3645, 2445, 0x000080FF}, {9240, 4080, 3645, 2445, 0x00C0C000},
                    {5640, 6480, 3645, 2445, 0x0000C000}, {9240, 6480, 3645, 2445, 0x000000C0},
                    {5640, 8880, 3645, 2445, 0x008080FF}, {9240, 8880, 3645, 2445, 0x00C00000}};
    }
}

class RecordingBoard : public engine::BoardView {
  public:
    // Every piece starts in its tray slot and every marker hidden off the
    // grid, as the board leaves them before a puzzle is set up.
    explicit RecordingBoard(const Geometry& g) : g_(g) {
        const int n = g.boardsize + 4;
        for (int k = 0; k < n * n; ++k) pieces_.push_back(home(k));
        markers_.assign(n * n, QPointF(0, 0));
        markerShown_.assign(n * n, false);
        markerPicture_.assign(n * n, "Images\\marker5x5.jpg");
    }

    float left(engine::Pic pic, int index) const override { return position(pic, index).x(); }
    float top(engine::Pic pic, int index) const override { return position(pic, index).y(); }
    float width(engine::Pic pic, int) const override {
        return pic == engine::Pic::Image5 ? g_.markerSide : g_.side;
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
        const int n = g_.boardsize + 4;
        return QPointF(5760 + g_.pitch * (index % n), 4200 + g_.pitch * (index / n));
    }
    const std::vector<QPointF>& pieces() const { return pieces_; }
    const std::vector<QPointF>& markers() const { return markers_; }
    bool markerShown(int index) const { return markerShown_[index]; }
    const std::string& markerPath(int index) const { return markerPicture_[index]; }

  private:
    QPointF home(int piece) const {
        return QPointF(g_.trayLeft + g_.trayPitch * (piece % g_.trayColumns),
                       g_.trayTop + g_.trayPitch * (piece / g_.trayColumns));
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

    Geometry g_;
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

SquareDrawer symbolOf(int boardsize, int symbol) {
    switch (boardsize) {
        case 0: {
            const Shape shapes[] = {Shape::Polygon, Shape::Triangle, Shape::Star, Shape::Square};
            return [s = shapes[symbol - 1]](QPainter& p) { drawShape(p, s); };
        }
        case 1: {
            const Face faces[] = {Face::Tovi, Face::Jebu, Face::Moustache, Face::Kramble,
                                  Face::Wuzzet};
            return [f = faces[symbol - 1]](QPainter& p) { drawFace(p, f); };
        }
        default:
            return [symbol](QPainter& p) { drawDie(p, symbol); };
    }
}

struct Example {
    std::vector<std::vector<std::int16_t>> solution;  // [x][y]
    std::vector<QPointF> pieces;                      // where the engine left each piece
    std::vector<QPointF> cells;
    std::vector<std::pair<QPointF, std::string>> markers;  // shown markers
};

Example makeExample(int boardsize) {
    const Geometry& g = kGeometry[boardsize];
    RecordingBoard board(g);
    FixedRandom random(20240 + boardsize);
    engine::Game game(boardsize, board, random);
    game.setsolution();
    engine::Options options;
    options.level = 1;
    game.setstart(options);
    Example example;
    example.solution = game.solution;
    example.pieces = board.pieces();
    const int n = boardsize + 4;
    for (int k = 0; k < n * n; ++k) {
        example.cells.push_back(board.cell(k));
        if (board.markerShown(k))
            example.markers.push_back({board.markers()[k], board.markerPath(k)});
    }
    return example;
}

// Draws the board in twips: a view box just around the coloured regions.
void drawBoard(QPainter& painter, int boardsize, const Example& example, bool solved) {
    const Geometry& g = kGeometry[boardsize];
    const int n = boardsize + 4;
    const QRectF view(5460, 3900, 7560, 7560);
    painter.fillRect(QRectF(0, 0, 100, 100), QColor(250, 251, 255));
    painter.save();
    painter.scale(100 / view.width(), 100 / view.height());
    painter.translate(-view.topLeft());
    QPainterPath regions;
    for (const RegionRect& r : regionRects(boardsize))
        regions.addRect(QRectF(r.left, r.top, r.width, r.height));
    softShadow(painter, regions, QPointF(40, 70), 90, QColor(0, 0, 0, 80));
    for (const RegionRect& r : regionRects(boardsize))
        painter.fillRect(QRectF(r.left, r.top, r.width, r.height), bgrColor(r.bbggrr));
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
            picture(at, g.markerSide, markerPicture(path));
    }
    painter.restore();
}

PictureFile exampleFile(const QString& name, int boardsize, bool solved) {
    const int pixels = jpegPixels(5400);
    return {"Images/" + name, pixels, pixels, [=] {
                const Example example = makeExample(boardsize);
                return paintSquare(pixels, [&](QPainter& painter) {
                    drawBoard(painter, boardsize, example, solved);
                });
            }};
}

}  // namespace

std::vector<PictureFile> rulesExampleFiles() {
    return {
        exampleFile("4x4puzzle.jpg", 0, false),  exampleFile("4x4solution.jpg", 0, true),
        exampleFile("5x5puzzle.jpg", 1, false),  exampleFile("5x5solution.jpg", 1, true),
        exampleFile("6x6puzzle2.jpg", 2, false), exampleFile("6x6solution2.jpg", 2, true),
    };
}

}  // namespace assets
