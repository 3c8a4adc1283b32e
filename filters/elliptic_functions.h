// Elliptic integrals and functions of the filter design. The argument of all is kc, the complementary modulus:
// kc = sqrt(1 - k²) for the modulus k.
#pragma once

namespace quorvan {

// The complete integral K(k).
double EllipticK(double kc) noexcept;

struct JacobiFunctions {
    double sn, cn, dn;
};
JacobiFunctions JacobiSnCnDn(double u, double kc) noexcept;

// The incomplete integral F(arctan x, k), to about single precision.
double EllipticArcSc(double x, double kc) noexcept;

// The modulus k whose ratio K(kc) / K(k) is v. Below 1.
double EllipticNomeModulus(double v) noexcept;

}  // namespace quorvan
