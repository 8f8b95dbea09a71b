// The polyhedra are built from their true geometry: counts of vertices, edges
// and faces, equal edges each shared by exactly two faces, flat faces, and
// the tetrahedra of the compounds sharing vertices the way they should.
#include "polyhedra_geometry.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <tuple>

using namespace assets;

namespace {

struct Counts {
    size_t vertices, edges, faces;
};

// Edges as vertex pairs with the number of faces that use each.
std::map<std::pair<int, int>, int> edgeUse(const Solid& solid) {
    std::map<std::pair<int, int>, int> use;
    for (const SolidFace& face : solid.faces) {
        const size_t n = face.corners.size();
        for (size_t i = 0; i < n; ++i) {
            int a = face.corners[i], b = face.corners[(i + 1) % n];
            if (a > b) std::swap(a, b);
            ++use[{a, b}];
        }
    }
    return use;
}

void expectRegular(const char* name, const Solid& solid, Counts counts) {
    const auto use = edgeUse(solid);
    EXPECT_EQ(solid.vertices.size(), counts.vertices) << name;
    EXPECT_EQ(use.size(), counts.edges) << name;
    EXPECT_EQ(solid.faces.size(), counts.faces) << name;
    const double edge = length(solid.vertices[use.begin()->first.first] -
                               solid.vertices[use.begin()->first.second]);
    for (const auto& [pair, faces] : use) {
        EXPECT_EQ(faces, 2) << name;
        EXPECT_NEAR(length(solid.vertices[pair.first] - solid.vertices[pair.second]), edge, 1e-9)
            << name;
    }
    for (const SolidFace& face : solid.faces) {
        const Vec3 a = solid.vertices[face.corners[0]];
        const Vec3 normal =
            cross(solid.vertices[face.corners[1]] - a, solid.vertices[face.corners[2]] - a);
        for (int corner : face.corners)
            EXPECT_NEAR(dot(solid.vertices[corner] - a, normal), 0, 1e-9)
                << name << " face not flat";
    }
}

}  // namespace

TEST(PolyhedraGeometry, StarPolyhedraAreRegular) {
    expectRegular("great stellated dodecahedron", greatStellatedDodecahedron(), {20, 30, 12});
    expectRegular("great icosahedron", greatIcosahedron(), {12, 30, 20});
    expectRegular("small stellated dodecahedron", smallStellatedDodecahedron(), {12, 30, 12});
    expectRegular("great dodecahedron", greatDodecahedron(), {12, 30, 12});
    EXPECT_TRUE(greatStellatedDodecahedron().starFaces);
    EXPECT_TRUE(smallStellatedDodecahedron().starFaces);
    EXPECT_FALSE(greatDodecahedron().starFaces);
}

TEST(PolyhedraGeometry, CompoundsAreRegularTetrahedraSharingTheDodecahedronsCorners) {
    const Solid ten = compoundOfTenTetrahedra();
    const Solid five = compoundOfFiveTetrahedra();
    expectRegular("ten tetrahedra", ten, {20, 60, 40});
    expectRegular("five tetrahedra", five, {20, 30, 20});
    // Every corner belongs to two tetrahedra of ten and to one of five.
    for (const auto& [solid, perCorner, groups] :
         {std::tuple{&ten, 2, 10}, std::tuple{&five, 1, 5}}) {
        std::map<int, std::set<int>> groupsAt;
        for (const SolidFace& face : solid->faces) {
            EXPECT_LT(face.group, groups);
            for (int corner : face.corners) groupsAt[corner].insert(face.group);
        }
        ASSERT_EQ(groupsAt.size(), 20u);
        for (const auto& [corner, owners] : groupsAt) EXPECT_EQ(int(owners.size()), perCorner);
    }
}
