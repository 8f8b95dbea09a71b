#pragma once
// True geometry of the star polyhedra and tetrahedron compounds: vertices
// built from the golden ratio, faces found from distances and symmetry axes.
// Plain C++.
#include <vector>

namespace assets {

struct Vec3 {
    double x = 0, y = 0, z = 0;
};
Vec3 operator+(Vec3 a, Vec3 b);
Vec3 operator-(Vec3 a, Vec3 b);
Vec3 operator*(Vec3 a, double s);
double dot(Vec3 a, Vec3 b);
Vec3 cross(Vec3 a, Vec3 b);
double length(Vec3 a);
Vec3 normalized(Vec3 a);

// A face is a cycle of vertex indices. Star faces (pentagrams) list their
// corners in the order the edges join them, so consecutive corners share an
// edge of the solid. group picks the colour (one per tetrahedron in the
// compounds, 0 elsewhere).
struct SolidFace {
    std::vector<int> corners;
    int group = 0;
};

struct Solid {
    std::vector<Vec3> vertices;
    std::vector<SolidFace> faces;
    bool starFaces = false;  // faces are pentagrams
};

Solid greatStellatedDodecahedron();  // {5/2, 3}: 20 vertices, 12 pentagrams
Solid greatIcosahedron();            // {3, 5/2}: 12 vertices, 20 triangles
Solid smallStellatedDodecahedron();  // {5/2, 5}: 12 vertices, 12 pentagrams
Solid greatDodecahedron();           // {5, 5/2}: 12 vertices, 12 pentagons
Solid compoundOfTenTetrahedra();     // 20 vertices, 40 triangles, groups 0..9
Solid compoundOfFiveTetrahedra();    // 20 vertices, 20 triangles, groups 0..4

}  // namespace assets
