#pragma once
// The symbol pictures of every picture set. Each function paints one picture
// into a 100 x 100 square (see canvas.h), filling the whole square. Every
// enumeration lists its pictures in the order the game's tables name them.
#include <QPainter>
#include <QPainterPath>

namespace assets {

void drawDie(QPainter& painter, int pips);  // 1..6

enum class Shape { Polygon, Triangle, Star, Square, Rectangle, Doughnut };
void drawShape(QPainter& painter, Shape shape);
// A shape's outline in the 100 x 100 square, and its colour.
QPainterPath shapePath(Shape shape);
QColor shapeColour(Shape shape);

enum class Pattern { Dots, Stripes, Tiles, Triangles, Link };
void drawPattern(QPainter& painter, Pattern pattern);

void drawNumber(QPainter& painter, int number);   // 1..6
void drawLetter(QPainter& painter, char letter);  // 'A'..'F'

enum class Suit { Clubs, Spades, Diamonds, Hearts };
void drawCard(QPainter& painter, Suit suit);

enum class Vehicle { Ambulance, FireEngine, PoliceCar, Boat };
void drawVehicle(QPainter& painter, Vehicle vehicle);

enum class Face { Tovi, Jebu, Moustache, Kramble, Wuzzet };
void drawFace(QPainter& painter, Face face);

enum class Flag { UnitedKingdom, Usa, SouthAfrica, Germany, Australia, France };
void drawFlag(QPainter& painter, Flag flag);

enum class Polyhedron {
    GreatStellatedDodecahedron,
    GreatIcosahedron,
    SmallStellatedDodecahedron,
    TenTetrahedra,
    FiveTetrahedra,
    GreatDodecahedron,
};
void drawPolyhedron(QPainter& painter, Polyhedron polyhedron);

}  // namespace assets
