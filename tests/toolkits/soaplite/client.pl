#!/usr/bin/perl
# SOAP::Lite as a client of the event management service:
#
#     client.pl <folder of the schema> <address of the bus> <location of the server> <case>
#
# The cases are those of tests/toolkits/Cases.h. With --defaults before the other arguments plain Perl
# data is sent as SOAP::Lite takes it.
use strict;
use warnings;
use Data::Dumper;
use FindBin;
use lib $FindBin::Bin;
use BusData;
use SOAP::Lite;

my $defaults = $ARGV[0] eq '--defaults' && shift;
my ($schema, $authority, $location, $case) = @ARGV;
my $bus = "$authority/schemas/halyardns/3/";
my $ems = "$authority/schemas/eventManagementService/1";
my $path = '/content/report';
binmode STDOUT, ':utf8';

my @header;
my ($operation, @parameters) = ('run');

sub run {
    my ($path, $values, $options) = @_;
    @parameters = (
        defined $path ? field('objectPath', 'bus:searchPathSingleObject', $path)
            : null('objectPath'),
        $values ? array('parameterValues', 'bus:parameterValue', @$values)
            : null('parameterValues'),
        $options ? array('options', 'bus:option', @$options) : null('options'));
}

my %cases = (
    'tree' => sub {
        @header = SOAP::Header->name('bus:halyardHeader' => \SOAP::Data->value(
            object('Warden', 'bus:Warden',
                field('authenticityToken', 'xsd:base64Binary', BYTES),
                object('WardenPassport', 'bus:WardenPassport',
                    field('id', 'xsd:string', 'MTsx'),
                    field('isAnonymous', 'xsd:boolean', 'false')),
                texts('roles', 'Authors', 'R&D')),
            object('tracking', 'bus:tracking', field('hopCount', 'xsd:integer', 2))))
            ->type('bus:halyardHeader');
        run($path, [region(item('item', 'EMEA', 'Europe'),
                object('item', 'bus:boundRangeParmValueItem',
                    item('end', '9', 'nine'), item('start', '1', 'one')))], [
            prompt('false'),
            option('StringArray', 'outputFormat', texts('value', 'PDF', 'HTML')),
            option('Int', 'verticalElements', field('value', 'xsd:int', -5))]);
    },
    'texts' => sub {
        run(TEXT, [], [option('String', 'burstKeyLimit',
            field('value', 'xsd:string', "  two\nlines  "))]);
    },
    'empty-text' => sub {
        run('', [], [option('String', 'burstKeyLimit', field('value', 'xsd:string', ''))]);
    },
    'nulls' => sub { run() },
    'empty' => sub { run($path, [], []) },
    'null-items' => sub {
        run($path, [region(), null('item')],
            [prompt(), null('item')]);
    },
    'omitted' => sub { run($path, [region()], [prompt()]) },
    # The same object twice would be sent once, and referred to.
    'shared' => sub { run($path, [], [prompt('true'), prompt('true')]) },
    'trigger' => sub {
        ($operation, @parameters) = ('trigger', field('triggerName', 'xsd:string', 'nightly'));
    },
);

# The same as Perl has it: hashes, whose keys have no order, lists, and values whose types are guessed.
my $option = {name => 'prompt', value => 'true'};
my %plain = (
    'tree' => [[{name => 'region', value => [{use => 'EMEA', display => 'Europe'}]}], [$option]],
    'texts' => [[], [{name => 'burstKeyLimit', value => TEXT}]],
    'empty-text' => [[], [{name => 'burstKeyLimit', value => ''}]],
    'nulls' => [undef, undef],
    'empty' => [[], []],
    'null-items' => [[{name => 'region', value => undef}, undef], []],
    'omitted' => [[{name => 'region'}], []],
    'shared' => [[], [$option, $option]],
);

my $client = SOAP::Lite->uri($ems)->proxy($location, timeout => 20)->on_action(sub { qq("$ems/") });
if ($defaults) {
    if ($case eq 'trigger') {
        ($operation, @parameters) = ('trigger', 'nightly');
    } else {
        my ($values, $options) = @{$plain{$case}};
        @parameters = (SOAP::Data->name(objectPath => $case eq 'nulls' ? undef : $path),
            SOAP::Data->name(parameterValues => $values), SOAP::Data->name(options => $options));
    }
} else {
    $client->serializer->register_ns($bus, 'bus');
    $client->deserializer(BusData::Deserializer->new);
    $cases{$case}->();
}

my $reply = eval { $client->call($operation => @parameters, @header) };
if (!defined $reply) {
    print "cannot read: $@";
} elsif ($reply->fault) {
    print 'fault: ', $reply->faultcode, ': ', $reply->faultstring, "\n";
} else {
    local ($Data::Dumper::Indent, $Data::Dumper::Sortkeys, $Data::Dumper::Terse) = (1, 1, 1);
    print Dumper($reply->result);
}
