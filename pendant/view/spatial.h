#pragma once

namespace pendant {
namespace view {

/// In mm where it is a position.
struct Vector {
    double x = 0;
    double y = 0;
    double z = 0;
};

Vector operator+(const Vector& one, const Vector& other);
Vector operator-(const Vector& one, const Vector& other);
Vector operator-(const Vector& vector);
Vector operator*(const Vector& vector, double factor);
double dot(const Vector& one, const Vector& other);
Vector cross(const Vector& one, const Vector& other);
double length(const Vector& vector);
/// Of length 1; a vector without length stays as it is.
Vector normalised(const Vector& vector);
/// The part of `vector` along `direction`, which has length 1.
Vector along(const Vector& vector, const Vector& direction);
Vector mixed(const Vector& from, const Vector& to, double share);
/// Any direction at a right angle to `direction`.
Vector across(const Vector& direction);

/// Where X, Y and Z of a frame point.
struct Rotation {
    Vector x{1, 0, 0};
    Vector y{0, 1, 0};
    Vector z{0, 0, 1};
};

Vector operator*(const Rotation& rotation, const Vector& vector);
Rotation operator*(const Rotation& one, const Rotation& other);
Rotation inverse(const Rotation& rotation);
/// \param axis of length 1
Rotation turnAbout(const Vector& axis, double degrees);
/// `a` degrees about Z, `b` about the new Y, `c` about the newest X.
Rotation eulerTurn(double a, double b, double c);
/// Z along `z`; Y as near to `y` as that lets it.
Rotation facing(const Vector& z, const Vector& y);

/// A frame seen from another one.
struct Place {
    Rotation turn;
    Vector at;
};

Place operator*(const Place& one, const Place& other);
Vector operator*(const Place& place, const Vector& position);
Place inverse(const Place& place);

} // namespace view
} // namespace pendant
