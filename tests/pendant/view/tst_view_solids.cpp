#include "viewfixture.h"

#include "view/solids.h"

#include <QTest>

#include <cmath>
#include <map>

using namespace pendant::view;

Q_DECLARE_METATYPE(pendant::view::Mesh)

namespace {

using Spot = std::array<qint64, 3>;

// Vertices that are apart by the dust of the arithmetic are one.
Spot spotOf(const Vertex& vertex) {
    const auto rounded = [](float value) { return qint64(std::lround(double(value) * 50)); };
    return {rounded(vertex.at[0]), rounded(vertex.at[1]), rounded(vertex.at[2])};
}

Vector vectorOf(const std::array<float, 3>& values) {
    return {values[0], values[1], values[2]};
}

bool isDegenerate(const Spot& a, const Spot& b, const Spot& c) {
    return a == b || b == c || c == a;
}

// Every edge is passed once in each direction.
bool isClosed(const Mesh& mesh) {
    std::map<std::pair<Spot, Spot>, int> balance;
    for (const Triangle& triangle : mesh.triangles) {
        Spot spots[3];
        for (int i = 0; i < 3; ++i)
            spots[i] = spotOf(mesh.vertices.at(triangle.corners[size_t(i)]));
        if (isDegenerate(spots[0], spots[1], spots[2]))
            continue;
        for (int i = 0; i < 3; ++i) {
            ++balance[{spots[i], spots[(i + 1) % 3]}];
            --balance[{spots[(i + 1) % 3], spots[i]}];
        }
    }
    return std::all_of(balance.begin(), balance.end(), [](const auto& edge) { return edge.second == 0; });
}

// Six times the volume inside: positive where the corners go round to the left seen from outside.
double volumeOf(const Mesh& mesh) {
    double sum = 0;
    for (const Triangle& triangle : mesh.triangles) {
        const Vector a = vectorOf(mesh.vertices.at(triangle.corners[0]).at);
        const Vector b = vectorOf(mesh.vertices.at(triangle.corners[1]).at);
        const Vector c = vectorOf(mesh.vertices.at(triangle.corners[2]).at);
        sum += dot(a, cross(b, c));
    }
    return sum / 6;
}

// How many corners have a normal that looks into the solid.
int wrongNormals(const Mesh& mesh) {
    int wrong = 0;
    for (const Triangle& triangle : mesh.triangles) {
        const Vertex* corners[3];
        for (int i = 0; i < 3; ++i)
            corners[i] = &mesh.vertices.at(triangle.corners[size_t(i)]);
        if (isDegenerate(spotOf(*corners[0]), spotOf(*corners[1]), spotOf(*corners[2])))
            continue;
        const Vector a = vectorOf(corners[0]->at);
        const Vector face = normalised(cross(vectorOf(corners[1]->at) - a, vectorOf(corners[2]->at) - a));
        for (const Vertex* corner : corners)
            wrong += dot(face, vectorOf(corner->normal)) < 0.2;
    }
    return wrong;
}

QVector<Mesh> meshesOf(const QJsonObject& description) {
    const ArmGeometry arm = armGeometryOf(description);
    QVector<Mesh> meshes;
    for (const Body& body : armBodies(arm))
        meshes << body.mesh;
    for (const Body& body : groundBodies(arm))
        meshes << body.mesh;
    for (const Place& tool : arm.tools)
        meshes << toolMesh(arm, tool);
    return meshes;
}

Mesh drum() {
    Mesh mesh;
    addDrum(&mesh, {turnAbout({1, 0, 0}, 30), {5, 6, 7}}, 50, 20, Material::Paint);
    return mesh;
}

Mesh block() {
    Mesh mesh;
    addBlock(&mesh, {{}, {100, 0, 0}}, 30, 20, 40, Material::Ground);
    return mesh;
}

} // namespace

// The bodies that the picture is made of.
class TestViewSolids : public QObject {
    Q_OBJECT

private slots:
    void aSolidIsClosedAndItsNormalsLookOutwards_data();
    void aSolidIsClosedAndItsNormalsLookOutwards();
    void aDrumIsAsLargeAsItIsSaid();
    void aBlockStandsOnItsPlace();
    void theBodiesOfARobotAreClosed_data();
    void theBodiesOfARobotAreClosed();
    void everyLinkThatIsSomewhereHasABody_data() { theBodiesOfARobotAreClosed_data(); }
    void everyLinkThatIsSomewhereHasABody();
    void theFlangeIsNoTool();
    void theToolEndsAtItsTip();
    void anArmIsThickByItsLengths();
};

void TestViewSolids::aSolidIsClosedAndItsNormalsLookOutwards_data() {
    QTest::addColumn<Mesh>("mesh");
    QTest::newRow("drum") << drum();
    QTest::newRow("block") << block();
    QTest::newRow("frame") << frameMesh(100);
    Mesh loft;
    addLoft(&loft, {{{}, 30, 20, 3}, {{{}, {0, 0, 60}}, 20, 25, 2}, {{{}, {10, 0, 100}}, 15, 15, 4}}, Material::Paint);
    QTest::newRow("loft") << loft;
}

void TestViewSolids::aSolidIsClosedAndItsNormalsLookOutwards() {
    QFETCH(Mesh, mesh);
    QVERIFY(isClosed(mesh));
    QVERIFY(volumeOf(mesh) > 0);
    QCOMPARE(wrongNormals(mesh), 0);
}

void TestViewSolids::aDrumIsAsLargeAsItIsSaid() {
    const double whole = M_PI * 50 * 50 * 40;
    QVERIFY(volumeOf(drum()) < whole && volumeOf(drum()) > whole * 0.95);
}

void TestViewSolids::aBlockStandsOnItsPlace() {
    float least = 1000;
    float most = -1000;
    for (const Vertex& vertex : block().vertices) {
        least = std::min(least, vertex.at[2]);
        most = std::max(most, vertex.at[2]);
        QVERIFY(vertex.at[0] >= 69.9F && vertex.at[0] <= 130.1F);
    }
    QCOMPARE(least, 0.F);
    QCOMPARE(most, 40.F);
}

void TestViewSolids::theBodiesOfARobotAreClosed_data() {
    QTest::addColumn<QJsonObject>("description");
    QTest::newRow("six axes") << viewfixture::sixAxes();
    QTest::newRow("seven axes") << viewfixture::sevenAxes();
    QTest::newRow("with external axes") << viewfixture::withExternals();
    QTest::newRow("odd") << viewfixture::odd();
}

void TestViewSolids::theBodiesOfARobotAreClosed() {
    QFETCH(QJsonObject, description);
    const QVector<Mesh> meshes = meshesOf(description);
    QVERIFY(meshes.size() > 3);
    for (const Mesh& mesh : meshes) {
        QVERIFY(isClosed(mesh));
        QVERIFY(volumeOf(mesh) > 0);
        for (const Vertex& vertex : mesh.vertices) {
            QVERIFY(std::isfinite(vertex.at[0]) && std::isfinite(vertex.at[1]) && std::isfinite(vertex.at[2]));
            QVERIFY(std::abs(length(vectorOf(vertex.normal)) - 1) < 1e-3);
        }
    }
}

void TestViewSolids::everyLinkThatIsSomewhereHasABody() {
    QFETCH(QJsonObject, description);
    const ArmGeometry arm = armGeometryOf(description);
    const std::vector<Body> bodies = armBodies(arm);
    for (int i = 0; i < arm.links.size(); ++i) {
        if (length(arm.links.at(i).next.at) < 1 || i + 1 == arm.links.size())
            continue;
        QVERIFY(std::any_of(bodies.begin(), bodies.end(), [i](const Body& body) {
            return body.anchor.kind == Anchor::Link && body.anchor.index == i && !body.mesh.triangles.empty();
        }));
    }
}

void TestViewSolids::theFlangeIsNoTool() {
    const ArmGeometry arm = armGeometryOf(viewfixture::sixAxes());
    QVERIFY(toolMesh(arm, {}).triangles.empty());
    QVERIFY(toolMesh(arm, {eulerTurn(10, 20, 30), {}}).triangles.empty());
}

void TestViewSolids::theToolEndsAtItsTip() {
    const ArmGeometry arm = armGeometryOf(viewfixture::sixAxes());
    const Place tip{eulerTurn(20, -35, 10), {55, 20, 330}};
    double farthest = -1e9;
    for (const Vertex& vertex : toolMesh(arm, tip).vertices)
        farthest = std::max(farthest, dot(vectorOf(vertex.at) - tip.at, tip.turn.z));
    QVERIFY(std::abs(farthest) < 1e-3);
}

void TestViewSolids::anArmIsThickByItsLengths() {
    const ArmGeometry large = armGeometryOf(viewfixture::sixAxes());
    const ArmGeometry small = armGeometryOf(viewfixture::sevenAxes());
    QVERIFY(ArmSizes(large).radius(1) > ArmSizes(small).radius(1));
    for (int i = 1; i < large.links.size(); ++i)
        QVERIFY(ArmSizes(large).radius(i) <= ArmSizes(large).radius(i - 1));
    QVERIFY(ArmSizes(large).flange() > 0);
}

QTEST_APPLESS_MAIN(TestViewSolids)
#include "tst_view_solids.moc"
