// Star polyhedra and tetrahedron compounds rendered in 3-D from their true
// geometry: faces cut into convex pieces, a BSP tree orders every piece back
// to front (the faces pass through one another), and each piece is filled
// with Lambert shading plus a small highlight. Drawn at four times the
// resolution without antialiasing and scaled down, so pieces meet seamlessly.
#include <QImage>
#include <array>
#include <cmath>
#include <memory>

#include "canvas.h"
#include "pictures.h"
#include "polyhedra_geometry.h"

namespace assets {

namespace {

struct Piece {
    std::vector<Vec3> points;
    std::vector<bool> outlined;  // edge i (points i -> i+1) lies on an edge of the solid
    Vec3 normal;
    QColor colour;
};

Vec3 lineIntersection(Vec3 a, Vec3 b, Vec3 c, Vec3 d) {
    const Vec3 ab = b - a;
    const Vec3 cd = d - c;
    const Vec3 n = cross(ab, cd);
    const double t = dot(cross(c - a, cd), n) / dot(n, n);
    return a + ab * t;
}

Vec3 faceNormal(const std::vector<Vec3>& p) {
    Vec3 n;
    for (size_t i = 0; i < p.size(); ++i) n = n + cross(p[i], p[(i + 1) % p.size()]);
    return normalized(n);
}

// A pentagram, corners in stroke order, as five tip triangles and the inner
// pentagon. Only the tips' outer sides are edges of the solid.
void addPentagram(std::vector<Piece>& pieces, const std::array<Vec3, 5>& s, QColor colour) {
    std::array<Vec3, 5> inner;
    const Vec3 normal = faceNormal({s[0], s[1], s[2]});
    for (int k = 0; k < 5; ++k) {
        const Vec3 baseA = s[(k + 2) % 5];
        const Vec3 baseB = s[(k + 3) % 5];
        const Vec3 x = lineIntersection(s[k], s[(k + 1) % 5], baseA, baseB);
        const Vec3 y = lineIntersection(s[k], s[(k + 4) % 5], baseA, baseB);
        pieces.push_back({{s[k], x, y}, {true, false, true}, normal, colour});
        inner[(k + 3) % 5] = x;
    }
    pieces.push_back({std::vector<Vec3>(inner.begin(), inner.end()), std::vector<bool>(5, false),
                      normal, colour});
}

std::vector<Piece> piecesOf(const Solid& solid, const std::vector<QColor>& colours) {
    std::vector<Piece> pieces;
    for (const SolidFace& face : solid.faces) {
        const QColor colour = colours[face.group % colours.size()];
        std::vector<Vec3> corners;
        for (int index : face.corners) corners.push_back(solid.vertices[index]);
        if (solid.starFaces) {
            addPentagram(pieces, {corners[0], corners[1], corners[2], corners[3], corners[4]},
                         colour);
        } else {
            pieces.push_back(
                {corners, std::vector<bool>(corners.size(), true), faceNormal(corners), colour});
        }
    }
    return pieces;
}

// --- BSP tree -------------------------------------------------------------

struct Node {
    Piece piece;
    double offset = 0;  // plane: dot(normal, p) == offset
    std::vector<Piece> coplanar;
    std::unique_ptr<Node> front, back;
};

constexpr double kPlaneEps = 1e-7;

void split(const Piece& piece, Vec3 n, double offset, std::vector<Piece>& front,
           std::vector<Piece>& back, std::vector<Piece>& coplanar) {
    const size_t count = piece.points.size();
    std::vector<double> side(count);
    bool anyFront = false, anyBack = false;
    for (size_t i = 0; i < count; ++i) {
        side[i] = dot(n, piece.points[i]) - offset;
        anyFront |= side[i] > kPlaneEps;
        anyBack |= side[i] < -kPlaneEps;
    }
    if (!anyFront && !anyBack) return coplanar.push_back(piece);
    if (!anyBack) return front.push_back(piece);
    if (!anyFront) return back.push_back(piece);
    Piece f{{}, {}, piece.normal, piece.colour};
    Piece b{{}, {}, piece.normal, piece.colour};
    for (size_t i = 0; i < count; ++i) {
        const size_t j = (i + 1) % count;
        const Vec3 p = piece.points[i];
        const bool edge = piece.outlined[i];
        if (side[i] >= -kPlaneEps) {
            f.points.push_back(p);
            f.outlined.push_back(edge);
        }
        if (side[i] <= kPlaneEps) {
            b.points.push_back(p);
            b.outlined.push_back(edge);
        }
        const bool crosses = (side[i] > kPlaneEps && side[j] < -kPlaneEps) ||
                             (side[i] < -kPlaneEps && side[j] > kPlaneEps);
        if (crosses) {
            const double t = side[i] / (side[i] - side[j]);
            const Vec3 q = p + (piece.points[j] - p) * t;
            // The part of edge i beyond q keeps its outline; the cut does not.
            const bool startsInFront = side[i] > 0;
            f.points.push_back(q);
            f.outlined.push_back(startsInFront ? false : edge);
            b.points.push_back(q);
            b.outlined.push_back(startsInFront ? edge : false);
        }
    }
    // A corner lying on the plane starts the cut edge on the side it closes.
    auto fixCutEdges = [&](Piece& part) {
        for (size_t i = 0; i < part.points.size(); ++i) {
            const Vec3 a = part.points[i];
            const Vec3 c = part.points[(i + 1) % part.points.size()];
            if (std::abs(dot(n, a) - offset) < kPlaneEps &&
                std::abs(dot(n, c) - offset) < kPlaneEps)
                part.outlined[i] = false;
        }
    };
    fixCutEdges(f);
    fixCutEdges(b);
    if (f.points.size() >= 3) front.push_back(f);
    if (b.points.size() >= 3) back.push_back(b);
}

std::unique_ptr<Node> build(std::vector<Piece> pieces) {
    if (pieces.empty()) return nullptr;
    auto node = std::make_unique<Node>();
    node->piece = pieces.front();
    node->offset = dot(node->piece.normal, node->piece.points[0]);
    std::vector<Piece> front, back;
    for (size_t i = 1; i < pieces.size(); ++i)
        split(pieces[i], node->piece.normal, node->offset, front, back, node->coplanar);
    node->front = build(std::move(front));
    node->back = build(std::move(back));
    return node;
}

template <typename Visit>
void backToFront(const Node* node, Vec3 eye, Visit visit) {
    if (!node) return;
    const bool eyeInFront = dot(node->piece.normal, eye) - node->offset > 0;
    backToFront(eyeInFront ? node->back.get() : node->front.get(), eye, visit);
    visit(node->piece);
    for (const Piece& piece : node->coplanar) visit(piece);
    backToFront(eyeInFront ? node->front.get() : node->back.get(), eye, visit);
}

// --- Scene ----------------------------------------------------------------

struct Look {
    Solid solid;
    std::vector<QColor> colours;
    QColor backdrop;
    double yaw, pitch, roll;  // degrees
};

Look lookOf(Polyhedron polyhedron) {
    switch (polyhedron) {
        case Polyhedron::GreatStellatedDodecahedron:
            // Nearly along a spike, so the star's three-sided points show.
            return {greatStellatedDodecahedron(),
                    {QColor(255, 190, 20)},
                    QColor(255, 236, 200),
                    -40,
                    30,
                    0};
        case Polyhedron::GreatIcosahedron:
            return {greatIcosahedron(), {QColor(40, 140, 245)}, QColor(205, 230, 255), 24, -18, 0};
        case Polyhedron::SmallStellatedDodecahedron:
            return {smallStellatedDodecahedron(),
                    {QColor(235, 45, 50)},
                    QColor(255, 215, 210),
                    14,
                    -28,
                    10};
        // The two compounds share their corners, so each gets a colour family
        // of its own (the other solids are gold, blue, red and green) and a
        // view of its own: the ten along a five-fold axis, a round rosette;
        // the five along a three-fold axis, a three-cornered star.
        case Polyhedron::TenTetrahedra:
            return {compoundOfTenTetrahedra(),
                    {QColor(150, 85, 230), QColor(95, 45, 170), QColor(185, 140, 245),
                     QColor(120, 60, 200), QColor(75, 35, 140), QColor(165, 110, 240),
                     QColor(105, 55, 185), QColor(140, 80, 215), QColor(85, 40, 155),
                     QColor(175, 125, 245)},
                    QColor(230, 220, 252),
                    6,
                    26,
                    0};
        case Polyhedron::FiveTetrahedra:
            return {compoundOfFiveTetrahedra(),
                    {QColor(255, 135, 205), QColor(225, 70, 160), QColor(255, 180, 225),
                     QColor(245, 105, 185), QColor(205, 55, 145)},
                    QColor(255, 225, 240),
                    -45,
                    35.26,
                    0};
        case Polyhedron::GreatDodecahedron:
            return {greatDodecahedron(), {QColor(40, 185, 90)}, QColor(215, 245, 215), 16, -26, 8};
    }
    return {};
}

Vec3 rotate(Vec3 p, double yaw, double pitch, double roll) {
    const double a = yaw * M_PI / 180, b = pitch * M_PI / 180, c = roll * M_PI / 180;
    p = {p.x * std::cos(a) + p.z * std::sin(a), p.y, -p.x * std::sin(a) + p.z * std::cos(a)};
    p = {p.x, p.y * std::cos(b) - p.z * std::sin(b), p.y * std::sin(b) + p.z * std::cos(b)};
    return {p.x * std::cos(c) - p.y * std::sin(c), p.x * std::sin(c) + p.y * std::cos(c), p.z};
}

// Lambert shading from a key light above left and a weaker fill from the
// right. Shadows lean towards a cool violet instead of plain black, so a gold
// face in shade reads as deep amber rather than olive.
QColor shaded(const Piece& piece, Vec3 eye) {
    Vec3 n = piece.normal;
    if (dot(n, eye - piece.points[0]) < 0) n = n * -1;
    const Vec3 key = normalized({-0.45, 0.6, 0.75});
    const Vec3 fill = normalized({0.7, -0.3, 0.6});
    const Vec3 halfway = normalized(key + Vec3{0, 0, 1});
    const double light = std::min(
        1.0, 0.22 + 0.66 * std::max(0.0, dot(n, key)) + 0.25 * std::max(0.0, dot(n, fill)));
    const double specular = 0.4 * std::pow(std::max(0.0, dot(n, halfway)), 40);
    const QColor shadow = mix(piece.colour.darker(260), QColor(50, 30, 90), 0.3);
    const QColor lit = mix(shadow, piece.colour, light);
    return mix(lit, Qt::white, std::min(1.0, specular));
}

QImage renderSolid(const Look& look, int pixels) {
    std::vector<Piece> pieces = piecesOf(look.solid, look.colours);
    double radius = 0;
    for (const Vec3& v : look.solid.vertices) radius = std::max(radius, length(v));
    for (Piece& piece : pieces) {
        for (Vec3& p : piece.points) p = rotate(p * (1 / radius), look.yaw, look.pitch, look.roll);
        piece.normal = rotate(piece.normal, look.yaw, look.pitch, look.roll);
    }
    const auto tree = build(std::move(pieces));

    const double distance = 7;
    const Vec3 eye{0, 0, distance};
    const double fit = pixels * 0.45 * (distance - 1) / distance;
    auto project = [&](Vec3 p) {
        const double f = distance / (distance - p.z);
        return QPointF(pixels / 2.0 + p.x * f * fit, pixels / 2.0 - p.y * f * fit);
    };

    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const double edgeWidth = pixels / 180.0;
    backToFront(tree.get(), eye, [&](const Piece& piece) {
        QPolygonF outline;
        for (const Vec3& p : piece.points) outline << project(p);
        const QColor colour = shaded(piece, eye);
        painter.setPen(QPen(colour, 1.0));
        painter.setBrush(colour);
        painter.drawPolygon(outline);
        painter.setPen(QPen(colour.darker(170), edgeWidth, Qt::SolidLine, Qt::RoundCap));
        for (int i = 0; i < outline.size(); ++i)
            if (piece.outlined[i]) painter.drawLine(outline[i], outline[(i + 1) % outline.size()]);
    });
    return image;
}

}  // namespace

void drawPolyhedron(QPainter& painter, Polyhedron polyhedron) {
    const Look look = lookOf(polyhedron);
    QRadialGradient backdrop(QPointF(45, 40), 80);
    backdrop.setColorAt(0, Qt::white);
    backdrop.setColorAt(1, look.backdrop);
    painter.fillRect(QRectF(0, 0, 100, 100), backdrop);

    QPainterPath floorShadow;
    floorShadow.addEllipse(QPointF(52, 90), 30, 5);
    softShadow(painter, floorShadow, QPointF(0, 0), 5, QColor(0, 0, 0, 70));

    const QRect device = painter.transform().mapRect(QRectF(0, 0, 100, 100)).toAlignedRect();
    const int supersample = 4;
    const QImage big = renderSolid(look, device.width() * supersample);
    const QImage small = big.scaled(device.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.save();
    painter.resetTransform();
    painter.drawImage(device.topLeft(), small);
    painter.restore();
}

}  // namespace assets
