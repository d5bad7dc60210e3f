#!/usr/bin/perl
# SOAP::Lite as a server of the event management service:
#
#     server.pl <folder of the schema> <address of the bus> <case>
#
# Prints its location when it listens, and ends when its standard input does.
use strict;
use warnings;
use FindBin;
use lib $FindBin::Bin;
use BusData;
use SOAP::Lite;
use SOAP::Transport::HTTP;

my ($schema, $authority, $case) = @ARGV;
my $bus = "$authority/schemas/halyardns/3/";
my $ems = "$authority/schemas/eventManagementService/1";

sub reply {
    my @details = @_;
    return object('result', 'bus:asynchReply', array('details', 'bus:asynchDetail', @details),
        field('status', 'bus:asynchReplyStatusEnum', 'complete'));
}

sub status {
    return object('item', 'bus:asynchDetailReportStatus',
        field('status', 'bus:asynchDetailReportStatusEnum', 'responseReady'));
}

sub pages {
    return object('item', 'bus:asynchDetailReportOutput', @_);
}

sub property {
    my ($name, $value) = @_;
    return object($name, 'bus:stringProp', field('value', 'xsd:string', $value));
}

my %cases = (
    'tree' => sub {
        my $result = object('result', 'bus:asynchReply',
            array('details', 'bus:asynchDetail', status(),
                pages(array('outputObjects', 'bus:baseClass',
                        object('item', 'bus:output', property('dataType', 'text/html')),
                        object('item', 'bus:page', property('dataType', 'text/plain'))),
                    texts('outputPages', '<p>1</p>', TEXT)),
                object('item', 'bus:asynchDetailMIMEAttachment',
                    field('data', 'xsd:base64Binary', BYTES), field('dataSize', 'xsd:integer', 7))),
            object('primaryRequest', 'bus:asynchRequest',
                field('objectPath', 'bus:searchPathSingleObject', '/content/report'),
                array('options', 'bus:option', prompt('true'))),
            field('status', 'bus:asynchReplyStatusEnum', 'complete'));
        my $header = SOAP::Header->name('bus:halyardHeader' => \SOAP::Data->value(
            object('tracking', 'bus:tracking', field('hopCount', 'xsd:integer', 3))))
            ->type('bus:halyardHeader');
        return ($result, $header);
    },
    'texts' => sub { reply() },
    'empty-text' => sub { reply(pages(texts('outputPages', '', 'two'))) },
    'nulls' => sub { null('result') },
    'empty' => sub { reply() },
    'null-items' => sub {
        reply(null('item'),
            pages(array('outputPages', 'xsd:string', field('item', 'xsd:string', 'one'),
                null('item'), field('item', 'xsd:string', 'three'))),
            object('item', 'bus:asynchDetailReportStatus'));
    },
    'omitted' => sub { object('result', 'bus:asynchReply') },
    'shared' => sub { reply(status(), status()) },
);

package EventManagementService;

sub run { return $cases{$case}->() }
sub trigger { return SOAP::Data->name(result => 42)->type('int') }

package main;

my $daemon = SOAP::Transport::HTTP::Daemon->new(LocalAddr => '127.0.0.1', LocalPort => 0)
    ->dispatch_with({$ems => 'EventManagementService'})
    ->on_action(sub { });
$daemon->serializer->register_ns($bus, 'bus');
$daemon->deserializer(BusData::Deserializer->new);
$| = 1;
print $daemon->url, "\n";
if (my $watcher = fork) {
    $SIG{TERM} = sub { exit 0 };
    $daemon->handle;
} else {
    1 while <STDIN>;
    kill TERM => getppid;
}
