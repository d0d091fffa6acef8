#include "benchmarks/proto_answer.h"

#include "benchmarks/answer_content.h"

namespace krm::bench::proto {
namespace {

// benchmarks/answer.cpp fills the same field by field.

void Fill(DispData& record, const DispContent& content) {
    record.set_data_string_id(content.stringId);
    record.set_data_phys_text(content.physText);
    record.set_data_text(content.text);
    record.set_data_phys(content.phys);
    record.set_data(content.value);
    record.set_raw_data(content.raw);
    record.set_disp_reserved(1);
    record.set_short_index(2);
    record.set_index(3);
    record.set_disp_data_type(4);
}

void Fill(ConversionData& record, const ItemContent& content) {
    record.set_mul(5);
    record.set_div(3);
    record.set_offset(-40);
    record.set_genre_id(7);
    record.set_sign_code(1);
    record.set_bit_length(16);
    record.set_conv_reserved(9);
    record.set_default_pattern("out of the specified range");
    Fill(*record.mutable_data_max(), content.most);
    Fill(*record.mutable_data_min(), content.least);
    Fill(*record.mutable_graph_max(), content.most);
    Fill(*record.mutable_graph_min(), content.least);
    for (const DispContent& pattern : content.patterns) {
        Fill(*record.add_pattern_disp(), pattern);
    }
}

void Fill(FFDData& record, const ItemContent& content) {
    record.set_id(content.id);
    record.set_name_id(content.id + 1000U);
    record.set_name(content.name);
    record.set_ffd_text(content.text);
    record.set_unit_phys_id(11);
    record.set_unit_phys(content.unitPhys);
    record.set_unit_id(12);
    record.set_unit(content.unit);
    record.set_ffd_reserved(13);
    record.set_data_type(14);
    record.set_dec_pnt_count(2);
    record.set_unit_conv_dec_pnt_count(1);
    Fill(*record.mutable_conversion_tbl(), content);
    Fill(*record.mutable_resolution_data(), content.resolution);
    Fill(*record.add_disp_data(), content.shown);
    DataLayout& layout = *record.mutable_data_layout();
    layout.set_pid_no(content.id + 2000U);
    layout.set_data_len(8);
    layout.set_endian(1);
    layout.set_byte_num(2);
    layout.set_byte_pos(4);
    layout.set_bit_mask(0xFFFF);
}

void Fill(DTCData& record, const CodeContent& content) {
    record.set_dtc_kind(1);
    record.set_dtc_code(content.code);
    record.set_dtc(content.text);
    record.set_dtc_name_id(content.code + 1);
    record.set_dtc_name(content.name);
    record.set_dtc_div_name_id(content.code + 2);
    record.set_dtc_div_name("Powertrain");
    record.set_ffd_type(3);
    record.set_ffd_id(4);
    record.set_comment(content.comment);
    for (unsigned number = 1; number <= 2; ++number) {
        record.add_ssr_no(number);
        record.add_sdr_no(number);
    }
    record.set_dtc_type(5);
    record.set_dtc_type_name_id(6);
    record.set_dtc_type_name("Emission related");
    record.set_dtc_type_tool_id(7);
    record.set_dtc_type_tool("Emission");
    record.set_dtc_status(8);
    record.set_dtc_status_name_id(9);
    record.set_dtc_status_name("Confirmed");
    record.set_dtc_status_tool_id(10);
    record.set_dtc_status_tool("Current");
    record.set_is_trip_time(true);
    record.set_fail_trip_time(true);
    Fill(*record.mutable_trip_time(), content.items[0]);
    record.set_is_after_ig_on_time(true);
    record.set_fail_after_ig_on_time(true);
    Fill(*record.mutable_after_ig_on_time(), content.items[1]);
    record.set_original_count_id(11);
    Fill(*record.mutable_clock_type(), content.items[2]);
    record.set_is_status_of_dtc(true);
    record.set_status_of_dtc(0x2F);
    record.set_dtc_group_id(12);
}

}  // namespace

void Fill(GetDTCAnswer& answer, unsigned variant, int codes) {
    // A protobuf message has no type and ID of its own: they are fields like any other.
    answer.set_command_type(1);
    answer.set_command_id(2);
    answer.set_not_support(true);
    answer.set_has_dtc_type(true);
    answer.set_readyness_status(0x07E5);
    for (int i = 0; i < codes; ++i) {
        Fill(*answer.add_data(), ContentOf(variant, i));
    }
}

}  // namespace krm::bench::proto
