#!/usr/bin/perl
# Writes src/toolkit/unicode_case_tables.inc from the Unicode data that Perl
# brings along:
#
#   perl tools/make_unicode_case.pl > src/toolkit/unicode_case_tables.inc
#
# A row of a table is a run of code points, `Step` apart, that all move by the
# same `Delta`. Latin letters mostly alternate between the two cases, so a step
# of 2 makes one row out of many.
use strict;
use warnings;
use Unicode::UCD qw(prop_invmap);

sub deltas_of {
    my ($property) = @_;
    my ($starts, $values) = prop_invmap($property);
    my @moved;
    for my $i (0 .. $#$starts) {
        next if $values->[$i] eq '0';
        my $delta = $values->[$i] - $starts->[$i];
        push @moved, [$_, $delta] for $starts->[$i] .. $starts->[$i + 1] - 1;
    }
    return grep { $_->[1] != 0 } @moved;
}

sub runs_of {
    my @runs;
    for my $pair (@_) {
        my ($code, $delta) = @$pair;
        my $run = $runs[-1];
        if ($run && $run->{delta} == $delta) {
            my $step = $code - $run->{last};
            $run->{step} = $step if $run->{first} == $run->{last} && $step <= 2;
            if ($step == $run->{step}) {
                $run->{last} = $code;
                next;
            }
        }
        push @runs, {first => $code, last => $code, step => 1, delta => $delta};
    }
    return @runs;
}

sub print_table {
    my ($name, $property) = @_;
    print "constexpr CaseRun ${name}[] = {\n";
    for my $run (runs_of(deltas_of($property))) {
        printf "    {0x%05X, 0x%05X, %d, %d},\n",
            $run->{first}, $run->{last}, $run->{step}, $run->{delta};
    }
    print "};\n";
}

my $version = Unicode::UCD::UnicodeVersion();
print "// Made by tools/make_unicode_case.pl from Unicode $version; not edited by hand.\n";
print_table('UpperRuns', 'Simple_Uppercase_Mapping');
print_table('LowerRuns', 'Simple_Lowercase_Mapping');
print_table('FoldRuns', 'Simple_Case_Folding');
