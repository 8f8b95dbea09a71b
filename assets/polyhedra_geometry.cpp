#include "polyhedra_geometry.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace assets {

Vec3 operator+(Vec3 a, Vec3 b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
Vec3 operator-(Vec3 a, Vec3 b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
Vec3 operator*(Vec3 a, double s) {
    return {a.x * s, a.y * s, a.z * s};
}
double dot(Vec3 a, Vec3 b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
Vec3 cross(Vec3 a, Vec3 b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double length(Vec3 a) {
    return std::sqrt(dot(a, a));
}
Vec3 normalized(Vec3 a) {
    return a * (1.0 / length(a));
}

namespace {

const double kPhi = (1 + std::sqrt(5.0)) / 2;
const double kEps = 1e-6;

// (0, ±φ, ±1) and its cyclic permutations: the dual of the dodecahedron
// below, so its vertices point at the dodecahedron's face centres.
std::vector<Vec3> icosahedronVertices() {
    std::vector<Vec3> v;
    for (double a : {-kPhi, kPhi}) {
        for (double b : {-1.0, 1.0}) {
            v.push_back({0, a, b});
            v.push_back({a, b, 0});
            v.push_back({b, 0, a});
        }
    }
    return v;
}

// (±1, ±1, ±1) and (0, ±1/φ, ±φ) with its cyclic permutations.
std::vector<Vec3> dodecahedronVertices() {
    std::vector<Vec3> v;
    for (double x : {-1.0, 1.0})
        for (double y : {-1.0, 1.0})
            for (double z : {-1.0, 1.0}) v.push_back({x, y, z});
    for (double a : {-1 / kPhi, 1 / kPhi}) {
        for (double b : {-kPhi, kPhi}) {
            v.push_back({0, a, b});
            v.push_back({a, b, 0});
            v.push_back({b, 0, a});
        }
    }
    return v;
}

// The distinct heights of the vertices along an axis, highest first.
std::vector<double> levels(const std::vector<Vec3>& vertices, Vec3 axis) {
    std::vector<double> heights;
    for (const Vec3& v : vertices) {
        const double h = dot(v, axis);
        if (std::none_of(heights.begin(), heights.end(),
                         [h](double o) { return std::abs(o - h) < kEps; }))
            heights.push_back(h);
    }
    std::sort(heights.rbegin(), heights.rend());
    return heights;
}

// The vertices at one height along the axis, in turning order around it.
std::vector<int> ringAround(const std::vector<Vec3>& vertices, Vec3 axis, double height) {
    const Vec3 helper = std::abs(axis.x) < 0.9 ? Vec3{1, 0, 0} : Vec3{0, 1, 0};
    const Vec3 e1 = normalized(cross(axis, helper));
    const Vec3 e2 = cross(axis, e1);
    std::vector<std::pair<double, int>> ring;
    for (int i = 0; i < int(vertices.size()); ++i) {
        if (std::abs(dot(vertices[i], axis) - height) < kEps)
            ring.push_back({std::atan2(dot(vertices[i], e2), dot(vertices[i], e1)), i});
    }
    std::sort(ring.begin(), ring.end());
    std::vector<int> order;
    for (const auto& entry : ring) order.push_back(entry.second);
    return order;
}

std::vector<int> starOrder(const std::vector<int>& ring) {
    std::vector<int> star;
    for (int k = 0; k < 5; ++k) star.push_back(ring[(2 * k) % 5]);
    return star;
}

// Faces through one ring of vertices around each of the twelve five-fold
// axes (the directions of the icosahedron's vertices).
Solid ringFaces(std::vector<Vec3> vertices, int level, bool star) {
    Solid solid;
    solid.vertices = std::move(vertices);
    solid.starFaces = star;
    for (const Vec3& corner : icosahedronVertices()) {
        const Vec3 axis = normalized(corner);
        const std::vector<int> ring =
            ringAround(solid.vertices, axis, levels(solid.vertices, axis)[level]);
        solid.faces.push_back({star ? starOrder(ring) : ring, 0});
    }
    return solid;
}

// Every set of `size` vertices whose pairwise distances all equal `distance`.
std::vector<std::vector<int>> equidistantSets(const std::vector<Vec3>& v, int size,
                                              double distance) {
    std::vector<std::vector<int>> found;
    std::vector<int> chosen;
    std::function<void(int)> extend = [&](int from) {
        if (int(chosen.size()) == size) {
            found.push_back(chosen);
            return;
        }
        for (int i = from; i < int(v.size()); ++i) {
            const bool fits = std::all_of(chosen.begin(), chosen.end(), [&](int j) {
                return std::abs(length(v[i] - v[j]) - distance) < kEps;
            });
            if (!fits) continue;
            chosen.push_back(i);
            extend(i + 1);
            chosen.pop_back();
        }
    };
    extend(0);
    return found;
}

void addTetrahedron(Solid& solid, const std::vector<int>& corners, int group) {
    for (int skip = 0; skip < 4; ++skip) {
        SolidFace face;
        face.group = group;
        for (int k = 0; k < 4; ++k)
            if (k != skip) face.corners.push_back(corners[k]);
        solid.faces.push_back(face);
    }
}

// The ten tetrahedra inscribed in the dodecahedron: two in each of its five cubes.
std::vector<std::vector<int>> inscribedTetrahedra(const std::vector<Vec3>& v) {
    return equidistantSets(v, 4, 2 * std::sqrt(2.0));
}

}  // namespace

Solid greatStellatedDodecahedron() {
    return ringFaces(dodecahedronVertices(), 1, true);
}

Solid smallStellatedDodecahedron() {
    return ringFaces(icosahedronVertices(), 1, true);
}

Solid greatDodecahedron() {
    return ringFaces(icosahedronVertices(), 1, false);
}

Solid greatIcosahedron() {
    Solid solid;
    solid.vertices = icosahedronVertices();
    // Its edges join each vertex to the five of the far ring: 2φ apart.
    for (const auto& triangle : equidistantSets(solid.vertices, 3, 2 * kPhi))
        solid.faces.push_back({triangle, 0});
    return solid;
}

Solid compoundOfTenTetrahedra() {
    Solid solid;
    solid.vertices = dodecahedronVertices();
    const auto tetrahedra = inscribedTetrahedra(solid.vertices);
    for (int t = 0; t < int(tetrahedra.size()); ++t) addTetrahedron(solid, tetrahedra[t], t);
    return solid;
}

Solid compoundOfFiveTetrahedra() {
    Solid solid;
    solid.vertices = dodecahedronVertices();
    const auto tetrahedra = inscribedTetrahedra(solid.vertices);
    // Five that share no vertex: one of the two mirror-image compounds.
    std::vector<int> pick;
    std::function<bool(int)> choose = [&](int from) {
        if (pick.size() == 5) return true;
        for (int t = from; t < int(tetrahedra.size()); ++t) {
            const bool disjoint = std::all_of(pick.begin(), pick.end(), [&](int other) {
                for (int a : tetrahedra[t])
                    for (int b : tetrahedra[other])
                        if (a == b) return false;
                return true;
            });
            if (!disjoint) continue;
            pick.push_back(t);
            if (choose(t + 1)) return true;
            pick.pop_back();
        }
        return false;
    };
    choose(0);
    for (int g = 0; g < int(pick.size()); ++g) addTetrahedron(solid, tetrahedra[pick[g]], g);
    return solid;
}

}  // namespace assets
