#include "expr/builtins.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

#include "expr/function_arguments.h"

namespace vrel {
namespace {

using Arguments = const FunctionArguments&;

constexpr double kPi = 3.141592653589793;
constexpr double kFullCircle = 6.283185307179586;
constexpr double kFullCircleDegrees = 360;
/// How near to a multiple counts as one.
constexpr double kMultipleTolerance = 1e-6;
constexpr int kRandomNumbers = 1000;

// A function of one number that always has a value.
template <double (*compute)(double)>
bool unary(Arguments arguments, double& result) {
  if (!arguments.allNumbers()) {
    return false;
  }
  result = compute(arguments.number(0));
  return true;
}

template <double (*compute)(double, double)>
bool binary(Arguments arguments, double& result) {
  if (!arguments.allNumbers()) {
    return false;
  }
  result = compute(arguments.number(0), arguments.number(1));
  return true;
}

template <double (*compute)(double, double, double)>
bool ternary(Arguments arguments, double& result) {
  if (!arguments.allNumbers()) {
    return false;
  }
  result = compute(arguments.number(0), arguments.number(1), arguments.number(2));
  return true;
}

// Combines all arguments, one after the other, with what the first ones came to.
template <double (*combine)(double, double)>
bool fold(Arguments arguments, double& result) {
  if (!arguments.allNumbers()) {
    return false;
  }
  result = arguments.number(0);
  for (int i = 1; i < arguments.count(); ++i) {
    result = combine(result, arguments.number(i));
  }
  return true;
}

// A function of one number that is not negative.
template <double (*compute)(double)>
bool ofNonNegative(Arguments arguments, double& result) {
  return arguments.allNumbers() && !(arguments.number(0) < 0) && unary<compute>(arguments, result);
}

// Takes no arguments and has a value that never changes.
template <int value>
bool fixed(Arguments /*arguments*/, double& result) {
  result = value;
  return true;
}

// Of a function that its form computes: only a text among the arguments leads here.
bool refuseText(Arguments /*arguments*/, double& /*result*/) {
  return false;
}

bool pi(Arguments /*arguments*/, double& result) {
  result = kPi;
  return true;
}

double truth(bool holds) {
  return holds ? 1 : 0;
}

double squareRoot(double x) {
  return std::sqrt(x);
}
double exponential(double x) {
  return std::exp(x);
}
double decimalLogarithm(double x) {
  return std::log10(x);
}
double naturalLogarithm(double x) {
  return std::log(x);
}
double absolute(double x) {
  return std::fabs(x);
}
double sine(double x) {
  return std::sin(x);
}
double cosine(double x) {
  return std::cos(x);
}
double tangent(double x) {
  return std::tan(x);
}
double arcTangent(double x, double y) {
  return std::atan2(x, y);
}
double toDegrees(double x) {
  return x / kFullCircle * kFullCircleDegrees;
}
double toRadians(double x) {
  return x / kFullCircleDegrees * kFullCircle;
}
double isPositive(double x) {
  return truth(x > 0);
}
double isNegative(double x) {
  return truth(x < 0);
}
double isZero(double x) {
  return truth(x == 0);
}
double sign(double x) {
  return isPositive(x) - isNegative(x);
}
double isBetween(double low, double x, double high) {
  return truth(low <= x && x <= high);
}
double plus(double a, double b) {
  return a + b;
}
double times(double a, double b) {
  return a * b;
}

// Each of the comparisons is lenient in its own direction, so that they are no complements: from
// the tolerance on, values on either side count as greater.
double lessWithin(double x, double y, double tolerance) {
  return truth(std::fabs(x - y) < std::fabs(tolerance) || x < y);
}
double lessOrEqualWithin(double x, double y, double tolerance) {
  return truth(std::fabs(x - y) <= std::fabs(tolerance) || x <= y);
}
double equalWithin(double x, double y, double tolerance) {
  return truth(std::fabs(x - y) <= std::fabs(tolerance));
}
double differsBy(double x, double y, double tolerance) {
  return truth(std::fabs(x - y) > std::fabs(tolerance));
}
double greaterOrEqualWithin(double x, double y, double tolerance) {
  return truth(std::fabs(x - y) >= std::fabs(tolerance) || x >= y);
}
double greaterWithin(double x, double y, double tolerance) {
  return truth(std::fabs(x - y) > std::fabs(tolerance) || x > y);
}

// Whether a power of two numbers is too large or, being no power of 0, too small for a number. Not
// every math library says so itself.
bool isOutOfRange(double base, double exponent, double result) {
  return std::isfinite(base) && std::isfinite(exponent) &&
         (std::isinf(result) || (result == 0 && base != 0));
}

bool power(Arguments arguments, double& result) {
  if (!arguments.allNumbers()) {
    return false;
  }
  const double base = arguments.number(0);
  const double exponent = arguments.number(1);
  result = std::pow(base, exponent);
  return !isOutOfRange(base, exponent, result);
}

bool percent(Arguments arguments, double& result) {
  if (!arguments.allNumbers()) {
    return false;
  }
  const double part = arguments.number(0);
  const double whole = arguments.number(1);
  result = whole == 0 ? 0 : part / whole * 100;
  return whole != 0 || part == 0;
}

// Toward zero to 32 bits; what does not fit is the smallest number of that many bits.
double truncate32(double x) {
  constexpr double kBelow = std::numeric_limits<std::int32_t>::min();
  constexpr double kAbove = std::numeric_limits<std::int32_t>::max();
  const double whole = std::trunc(x);
  return whole >= kBelow && whole <= kAbove ? static_cast<std::int32_t>(whole) : kBelow;
}

// Halves away from zero.
bool round(Arguments arguments, double& result) {
  if (!arguments.allNumbers()) {
    return false;
  }
  double scale = 1;
  if (arguments.count() > 1) {
    if (arguments.number(1) < 0) {
      return false;
    }
    for (double places = truncate32(arguments.number(1)); places > 0 && std::isfinite(scale);
         --places) {
      scale *= 10;
    }
  }
  const double scaled = arguments.number(0) * scale;
  result = truncate32(scaled < 0 ? scaled - 0.5 : scaled + 0.5) / scale;
  return true;
}

// How far a value lies outside of its bounds.
bool overUnder(Arguments arguments, double& result) {
  if (!arguments.allNumbers()) {
    return false;
  }
  const double low = arguments.number(0);
  const double x = arguments.number(1);
  const double high = arguments.number(2);
  result = x < low ? x - low : x > high ? x - high : 0;
  return !(low > high);
}

double isMultiple(double value, double multiple) {
  if (multiple == 0) {
    return 0;
  }
  const double rest = std::fmod(value, multiple);
  return truth(std::fabs(rest) < kMultipleTolerance ||
               std::fabs(rest - multiple) < kMultipleTolerance);
}

bool average(Arguments arguments, double& result) {
  if (!fold<plus>(arguments, result)) {
    return false;
  }
  result /= arguments.count();
  return true;
}

bool sequence(Arguments arguments, double& result) {
  result = 1;
  return arguments.allNumbers();
}

// From the C library's generator, which the naming of message files seeds.
bool random(Arguments /*arguments*/, double& result) {
  result = std::rand() % kRandomNumbers;  // NOLINT(cert-msc*,concurrency-mt-unsafe)
  return true;
}

constexpr int kMany = 32;

struct Builtin {
  std::string_view name;
  BuiltinFunction function;
  int minimum;
  int maximum;
  std::string_view usage;
  CallForm form = CallForm::Ordinary;
  bool varies = false;
};

constexpr std::array kBuiltins = {
    Builtin{"POWER", power, 2, 2, "(x,y)"},
    Builtin{"PERCENT", percent, 2, 2, "(x,y)"},
    Builtin{"SQRT", ofNonNegative<squareRoot>, 1, 1, "(x)"},
    Builtin{"EXP", unary<exponential>, 1, 1, "(x)"},
    Builtin{"LOG", ofNonNegative<decimalLogarithm>, 1, 1, "(x)"},
    Builtin{"LN", ofNonNegative<naturalLogarithm>, 1, 1, "(x)"},
    Builtin{"ABS", unary<absolute>, 1, 1, "(x)"},
    Builtin{"SIGN", unary<sign>, 1, 1, "(x)"},
    Builtin{"POS", unary<isPositive>, 1, 1, "(x)"},
    Builtin{"NEG", unary<isNegative>, 1, 1, "(x)"},
    Builtin{"ZERO", unary<isZero>, 1, 1, "(x)"},
    Builtin{"ROUND", round, 1, 2, "(x, [num decimal places])"},
    Builtin{"OVERUNDER", overUnder, 3, 3, "(lb,x,ub)"},
    Builtin{"ISMULTIPLE", binary<isMultiple>, 2, 2, "(value,multiple)"},
    Builtin{"NOT", unary<isZero>, 1, 1, "(x)"},
    Builtin{"IF", nullptr, 3, 3, "(x,y,z)", CallForm::If},
    Builtin{"BETWEEN", ternary<isBetween>, 3, 3, "(lb,x,ub)"},
    Builtin{"SUM", refuseText, 2, kMany, "(a,b...)", CallForm::Sum},
    Builtin{"PRODUCT", fold<times>, 2, kMany, "(a,b...)"},
    Builtin{"LTTOL", ternary<lessWithin>, 3, 3, "(x,y,tol)"},
    Builtin{"LETOL", ternary<lessOrEqualWithin>, 3, 3, "(x,y,tol)"},
    Builtin{"EQTOL", ternary<equalWithin>, 3, 3, "(x,y,tol)"},
    Builtin{"NETOL", ternary<differsBy>, 3, 3, "(x,y,tol)"},
    Builtin{"GETOL", ternary<greaterOrEqualWithin>, 3, 3, "(x,y,tol)"},
    Builtin{"GTTOL", ternary<greaterWithin>, 3, 3, "(x,y,tol)"},
    Builtin{"SEQUENCE", sequence, 1, kMany, "(a,b...)"},
    Builtin{"MAX", refuseText, 2, kMany, "(a,b...)", CallForm::Largest},
    Builtin{"MIN", refuseText, 2, kMany, "(a,b...)", CallForm::Smallest},
    Builtin{"AVG", average, 2, kMany, "(a,b...)"},
    Builtin{"RAND", random, 0, 0, "()", CallForm::Ordinary, true},
    Builtin{"SIN", unary<sine>, 1, 1, "(x)"},
    Builtin{"COS", unary<cosine>, 1, 1, "(x)"},
    Builtin{"TAN", unary<tangent>, 1, 1, "(x)"},
    Builtin{"ATAN2", binary<arcTangent>, 2, 2, "(x,y)"},
    Builtin{"RadToDeg", unary<toDegrees>, 1, 1, "(x)"},
    Builtin{"DegToRad", unary<toRadians>, 1, 1, "(x)"},
    Builtin{"DEFAULT", fixed<0>, 0, 0, "()"},
    Builtin{"SELECT", fixed<2>, 0, 0, "()"},
    Builtin{"RED", fixed<4>, 0, 0, "()"},
    Builtin{"BLUE", fixed<5>, 0, 0, "()"},
    Builtin{"GREEN", fixed<6>, 0, 0, "()"},
    Builtin{"YELLOW", fixed<3>, 0, 0, "()"},
    Builtin{"GRAY", fixed<1>, 0, 0, "()"},
    Builtin{"BLACK", fixed<7>, 0, 0, "()"},
    Builtin{"PINK", fixed<9>, 0, 0, "()"},
    Builtin{"VIOLET", fixed<10>, 0, 0, "()"},
    Builtin{"ORANGE", fixed<8>, 0, 0, "()"},
    Builtin{"WHITE", fixed<11>, 0, 0, "()"},
    Builtin{"RANGEMAP", nullptr, 2, kMany, "(a...)", CallForm::RangeMap},
    // Reports made elsewhere name these statistics; here they have no value and count as 0.
    Builtin{"AvgUtil", fixed<0>, 0, 0, "()"},
    Builtin{"MaxUtil", fixed<0>, 0, 0, "()"},
    Builtin{"AvgMachineUtil", fixed<0>, 0, 0, "()"},
    Builtin{"MaxMachineUtil", fixed<0>, 0, 0, "()"},
    Builtin{"AvgStorageUtil", fixed<0>, 0, 0, "()"},
    Builtin{"MaxStorageUtil", fixed<0>, 0, 0, "()"},
    Builtin{"AvgSupplyUtil", fixed<0>, 0, 0, "()"},
    Builtin{"MaxSupplyUtil", fixed<0>, 0, 0, "()"},
    Builtin{"AvgDemandSat", fixed<0>, 0, 0, "()"},
    Builtin{"MaxDemandSat", fixed<0>, 0, 0, "()"},
};

struct Constant {
  std::string_view name;
  BuiltinFunction function;
};

constexpr std::array kConstants = {
    Constant{"PI", pi},
    Constant{"TRUE", fixed<1>},
    Constant{"FALSE", fixed<0>},
};

}  // namespace

void addBuiltins(FunctionRegistry& functions) {
  for (const Builtin& builtin : kBuiltins) {
    functions.add({.name = std::string(builtin.name),
                   .function = builtin.function,
                   .minimum = builtin.minimum,
                   .maximum = builtin.maximum,
                   .usage = std::string(builtin.usage),
                   .form = builtin.form,
                   .varies = builtin.varies});
  }
  for (const Constant& constant : kConstants) {
    functions.add({.name = std::string(constant.name),
                   .function = constant.function,
                   .usage = "()",
                   .constant = true});
  }
}

}  // namespace vrel
