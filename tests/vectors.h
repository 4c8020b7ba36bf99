// Tables of values in tests/data/, in the form that the README of its vectors/ tells.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace gloamtide {

template <class T>
struct Columns : std::map<std::string, T> {
    const T& operator[](const std::string& Name) const { return this->at(Name); }
};

// The inputs or the outputs of a row, or a group of them. Names that are none of the shared state are left to the test.
struct VectorValues {
    Columns<double> Numbers;
    Columns<std::string> Texts;

    double operator[](const std::string& Name) const { return Numbers[Name]; }
    int Whole(const std::string& Name) const { return static_cast<int>(Numbers[Name]); }

    void PutIntoState() const;
    void ExpectInState() const;
};

struct VectorRow {
    std::string Where;  // file and line
    VectorValues In, Out;
    std::vector<VectorValues> Groups;

    // Compares results with the outputs of those names.
    void Expect(std::initializer_list<std::pair<const char*, double>> Results) const;
};

// All rows of a table, named by its path in tests/data/; throws where it is no table.
std::vector<VectorRow> ReadVectors(const std::string& Table);

}  // namespace gloamtide
