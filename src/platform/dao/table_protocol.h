// The words that pass between the main program and the program that reads files of tables.
//
// The helper finds the file open as FileDescriptor; requests come on its standard input, answers go to its
// standard output.
//
// Both directions carry frames: the length of what follows (32 bits), one byte of kind, the content. Numbers
// are in the machine's own byte order: both ends run on one machine. A text is its number of UTF-16 units (32
// bits) and the units; a name is its number of bytes (16 bits) and its UTF-8.
#pragma once

#include <cstdint>

namespace TableProtocol {

constexpr int FileDescriptor = 3;

enum class Request : std::uint8_t {
    /// The first one, and sent once: the password, a text. The answer is a Catalog.
    Open = 1,
    /// Table's position in the catalog (16 bits), number of conditions (16 bits), and for each one the
    /// column's position (16 bits), a ValueKind and the value: 32 bits or a text. No condition asks for all
    /// rows.
    Rows,
    /// Table's position (16 bits), number of columns (16 bits), one at least, and the position of each one
    /// (16
    /// bits): a search by these columns is to be expected. It has no answer, and waits for every other
    /// request.
    LookAhead,
    /// Table's position (16 bits). The answer is Columns, or Count, or Failure.
    Columns,
    Count,
};

enum class Reply : std::uint8_t {
    /// The answer to Open. Whether the helper has shut itself in (8 bits); the file's FileIdentity; number of
    /// tables (16 bits), and for each one its name, its rows (32 bits) or NotCounted, the number of its
    /// columns (16 bits; 0 where Columns is to be asked for), and for each of these its name, a CellType and
    /// its size in characters (16 bits). Then the number of the other things that could be taken for tables
    /// (16 bits), and for each one its name and an OtherKind.
    Catalog = 1,
    /// Any number of whole rows. A row is one bit for each column, set where it is Null, in whole bytes from
    /// the lowest bit, and then the other columns' values.
    Rows,
    /// Nothing found for a while, still at it.
    Busy,
    /// The last row has been sent.
    End,
    /// A FailureKind, and as UTF-8 what is wrong with the file. It ends the answer.
    Failure,
    /// As Rows; a row is for each column a StoredKind and the value.
    StoredRows,
    /// The number of the columns (16 bits, one at least), and each as in the catalog.
    Columns,
    /// The table's rows (32 bits).
    Count,
};

constexpr std::uint32_t NotCounted = 0xffffffff;

/// Refused: the text is one for the user. CutOff has no text but the file's size and that which it must have
/// (64 bits each, in bytes).
enum class FailureKind : std::uint8_t { Damaged = 1, WrongPassword, Refused, CutOff };

enum class OtherKind : std::uint8_t { Query = 1, Link };

enum class ValueKind : std::uint8_t { Integer = 1, Text };

/// Value's form: Boolean and Byte 8 bits, Integer 16, Long 32, Currency 64 (ten-thousandths), Single and
/// Double IEEE, Date a Double of days since 1899-12-30, Text and Memo a text.
/// An Unsupported column has no values, and all its cells are marked as Null.
enum class CellType : std::uint8_t {
    Boolean,
    Byte,
    Integer,
    Long,
    Currency,
    Single,
    Double,
    Date,
    Text,
    Memo,
    Unsupported
};

/// A value that does not have its column's type, or of which the main program alone knows what it means:
/// Integer 64 bits, Real a Double, Text a text. The others have no value: what is in the file is no text or
/// number, or too long.
enum class StoredKind : std::uint8_t { Null, Integer, Real, Text, Blob, TooLong };

/// No frame is longer; one row fits in a frame.
constexpr std::uint32_t LongestFrame = 128u << 20;

} // namespace TableProtocol
