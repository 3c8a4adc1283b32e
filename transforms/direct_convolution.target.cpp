#include "transforms/direct_convolution.h"

#include "transforms/vectors.h"

namespace quorvan::QV_TARGET {
namespace {

// What the loops need of reals and of records: the registers of several elements and of one, a factor that stays, and
// sum + factor element.
struct OfReals {
    using Element = double;
    using One = double;
    template <class V>
    struct Held {
        V value;
    };
    template <class V>
    QV_INLINE static Held<V> Hold(double a) {
        return {a - V{}};
    }
    template <class V>
    QV_INLINE static V Plus(V sum, Held<V> a, V b) {
        return sum + a.value * b;
    }
};

struct OfRecords {
    using Element = ComplexRecord;
    using One = Pair;
    template <class V>
    using Held = Factor<V>;
    template <class V>
    QV_INLINE static Held<V> Hold(ComplexRecord a) {
        return FactorOf<V>(a);
    }
    template <class V>
    QV_INLINE static V Plus(V sum, Held<V> a, V b) {
        return sum + Product(a, b);
    }
};

// An array, or the same array from its end.
template <class Kind, bool kReversed>
struct Reader {
    using Element = typename Kind::Element;
    const Element* data;
    Count count;

    QV_INLINE Element operator[](Size i) const { return data[kReversed ? count - 1 - i : i]; }
    // The elements from i on that V holds.
    template <class V>
    QV_INLINE V load(Size i) const {
        constexpr Size kElements = sizeof(V) / sizeof(Element);
        const V v = Load<V>(reinterpret_cast<const double*>(data + (kReversed ? count - i - kElements : i)));
        if constexpr (kReversed)
            return Reversed(v);
        else
            return v;
    }
};

// Adds the rows outer[i] inner[l - i], i in the given order, in groups of four: where all four rows of a group overlap,
// each output is loaded and stored once for four terms.
template <class Kind, bool kAscending, class Outer, class Inner>
class Rows {
    using Element = typename Kind::Element;
    using One = typename Kind::One;
    static constexpr Count kGroup = 4;

public:
    Rows(Outer outer, Inner inner, Element* out) : outer_(outer), inner_(inner), out_(out) {}

    void add() const {
        Count done = 0;
        if (inner_.count >= kGroup)
            for (; done + kGroup <= outer_.count; done += kGroup) addGroup(place(done, kGroup));
        for (; done < outer_.count; ++done) addRow(place(done, 1));
    }

private:
    // The lowest row of the next `rows`.
    Count place(Count done, Count rows) const { return kAscending ? done : outer_.count - done - rows; }

    double* at(Size l) const { return reinterpret_cast<double*>(out_ + l); }

    template <class V>
    QV_INLINE void addFour(Count base, Size begin, Size end) const {
        constexpr Size kElements = sizeof(V) / sizeof(Element);
        const auto a0 = Kind::template Hold<V>(outer_[base]), a1 = Kind::template Hold<V>(outer_[base + 1]),
                   a2 = Kind::template Hold<V>(outer_[base + 2]), a3 = Kind::template Hold<V>(outer_[base + 3]);
        for (Size l = begin; l + kElements <= end; l += kElements) {
            const Size j = l - base;
            V sum = Load<V>(at(l));
            if constexpr (kAscending) {
                sum = Kind::Plus(sum, a0, inner_.template load<V>(j));
                sum = Kind::Plus(sum, a1, inner_.template load<V>(j - 1));
                sum = Kind::Plus(sum, a2, inner_.template load<V>(j - 2));
                sum = Kind::Plus(sum, a3, inner_.template load<V>(j - 3));
            } else {
                sum = Kind::Plus(sum, a3, inner_.template load<V>(j - 3));
                sum = Kind::Plus(sum, a2, inner_.template load<V>(j - 2));
                sum = Kind::Plus(sum, a1, inner_.template load<V>(j - 1));
                sum = Kind::Plus(sum, a0, inner_.template load<V>(j));
            }
            Store(at(l), sum);
        }
    }

    // What a row gives to the outputs from begin to end.
    template <class V>
    QV_INLINE void addOne(Count i, Size begin, Size end) const {
        constexpr Size kElements = sizeof(V) / sizeof(Element);
        const auto a = Kind::template Hold<V>(outer_[i]);
        for (Size l = begin; l + kElements <= end; l += kElements)
            Store(at(l), Kind::Plus(Load<V>(at(l)), a, inner_.template load<V>(l - i)));
    }

    // Runs a step over registers of several elements and then over what is left.
    template <class Step>
    QV_INLINE static void inRegisters(Size begin, Size end, const Step& step) {
        constexpr Size kElements = sizeof(Wide) / sizeof(Element);
        const Size whole = begin + (end - begin) / kElements * kElements;
        step(Wide{}, begin, whole);
        step(One{}, whole, end);
    }

    void addRow(Count i) const {
        inRegisters(i, Size{i} + inner_.count,
                    [&](auto v, Size begin, Size end) { addOne<decltype(v)>(i, begin, end); });
    }

    void addGroup(Count base) const {
        const Size first = Size{base} + kGroup - 1, last = Size{base} + inner_.count;
        for (Count step = 0; step < kGroup; ++step) {
            const Count i = base + (kAscending ? step : kGroup - 1 - step);
            addOne<One>(i, i, first);
        }
        inRegisters(first, last, [&](auto v, Size begin, Size end) { addFour<decltype(v)>(base, begin, end); });
        for (Count step = 0; step < kGroup; ++step) {
            const Count i = base + (kAscending ? step : kGroup - 1 - step);
            addOne<One>(i, last, Size{i} + inner_.count);
        }
    }

    Outer outer_;
    Inner inner_;
    Element* out_;
};

// The shorter sequence goes outside, so that the inner loops are long. Ascending terms of a are descending ones of b.
template <class Kind, bool kReversed>
void Convolve(const typename Kind::Element* a, Count n, const typename Kind::Element* b, Count m,
              typename Kind::Element* out) {
    using First = Reader<Kind, false>;
    using Second = Reader<Kind, kReversed>;
    const First first{a, n};
    const Second second{b, m};
    if (n <= m)
        Rows<Kind, true, First, Second>(first, second, out).add();
    else
        Rows<Kind, false, Second, First>(second, first, out).add();
}

}  // namespace

const DirectConvolution kDirectConvolution = {Convolve<OfReals, false>, Convolve<OfReals, true>,
                                              Convolve<OfRecords, false>};

}  // namespace quorvan::QV_TARGET
