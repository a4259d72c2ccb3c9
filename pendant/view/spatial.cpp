#include "spatial.h"

#include <cmath>

namespace pendant {
namespace view {

Vector operator+(const Vector& one, const Vector& other) {
    return {one.x + other.x, one.y + other.y, one.z + other.z};
}

Vector operator-(const Vector& one, const Vector& other) {
    return {one.x - other.x, one.y - other.y, one.z - other.z};
}

Vector operator-(const Vector& vector) {
    return {-vector.x, -vector.y, -vector.z};
}

Vector operator*(const Vector& vector, double factor) {
    return {vector.x * factor, vector.y * factor, vector.z * factor};
}

double dot(const Vector& one, const Vector& other) {
    return one.x * other.x + one.y * other.y + one.z * other.z;
}

Vector cross(const Vector& one, const Vector& other) {
    return {one.y * other.z - one.z * other.y, one.z * other.x - one.x * other.z, one.x * other.y - one.y * other.x};
}

double length(const Vector& vector) {
    return std::sqrt(dot(vector, vector));
}

Vector normalised(const Vector& vector) {
    const double size = length(vector);
    return size > 0 ? vector * (1 / size) : vector;
}

Vector along(const Vector& vector, const Vector& direction) {
    return direction * dot(vector, direction);
}

Vector mixed(const Vector& from, const Vector& to, double share) {
    return from + (to - from) * share;
}

Vector across(const Vector& direction) {
    const Vector other = std::abs(direction.x) < 0.7 ? Vector{1, 0, 0} : Vector{0, 1, 0};
    return normalised(cross(direction, other));
}

Vector operator*(const Rotation& rotation, const Vector& vector) {
    return rotation.x * vector.x + rotation.y * vector.y + rotation.z * vector.z;
}

Rotation operator*(const Rotation& one, const Rotation& other) {
    return {one * other.x, one * other.y, one * other.z};
}

Rotation inverse(const Rotation& rotation) {
    return {{rotation.x.x, rotation.y.x, rotation.z.x},
            {rotation.x.y, rotation.y.y, rotation.z.y},
            {rotation.x.z, rotation.y.z, rotation.z.z}};
}

Rotation turnAbout(const Vector& axis, double degrees) {
    const double angle = degrees * M_PI / 180;
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const auto turned = [&](const Vector& v) { return v * c + cross(axis, v) * s + along(v, axis) * (1 - c); };
    return {turned({1, 0, 0}), turned({0, 1, 0}), turned({0, 0, 1})};
}

Rotation eulerTurn(double a, double b, double c) {
    return turnAbout({0, 0, 1}, a) * turnAbout({0, 1, 0}, b) * turnAbout({1, 0, 0}, c);
}

Rotation facing(const Vector& z, const Vector& y) {
    const Vector forward = normalised(z);
    const Vector side = y - along(y, forward);
    const Vector up = length(side) > 1e-6 ? normalised(side) : across(forward);
    return {cross(up, forward), up, forward};
}

Place operator*(const Place& one, const Place& other) {
    return {one.turn * other.turn, one * other.at};
}

Vector operator*(const Place& place, const Vector& position) {
    return place.turn * position + place.at;
}

Place inverse(const Place& place) {
    const Rotation back = inverse(place.turn);
    return {back, -(back * place.at)};
}

} // namespace view
} // namespace pendant
